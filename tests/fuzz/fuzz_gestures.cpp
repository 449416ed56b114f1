// Everything that QML can do to an item, in any order and with any value.
#include "FuzzInput.h"
#include "support/PaintRecorder.h"
#include "zalento/item/ZaItem.h"
#include "zalento/render/ModelViewScope.h"

#include <QImage>
#include <QPainter>

#include <cmath>

using namespace Drevon::Zalento;

namespace {

constexpr int imageSize = 48;
constexpr int mostSteps = 40;
// Two rings instead of eleven; an input can choose another one.
constexpr int fastViewStyle = 1;

using Drawing = QVector<Test::PaintCall>;

const char *const kinds[] = {"CrackWidth", "PipeDimension", "WaterLevel", "BranchAngle",
                             "BendAngle",  "CrossSection",  "",           "no kind"};
constexpr int kindCount = 8;
// The kinds that an operator chooses.
constexpr int properKindCount = 6;

bool isSame(const Drawing &a, const Drawing &b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const Test::PaintCall &x, const Test::PaintCall &y) {
                          return x.kind == y.kind && x.points == y.points && x.text == y.text &&
                                 x.pen == y.pen && x.brush == y.brush;
                      });
}

// Takes every call and does nothing with it.
class BlindEngine : public QPaintEngine
{
public:
    BlindEngine()
        : QPaintEngine(AllFeatures)
    {}

    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState &) override {}
    void drawPath(const QPainterPath &) override {}
    void drawLines(const QLine *, int) override {}
    void drawLines(const QLineF *, int) override {}
    void drawRects(const QRect *, int) override {}
    void drawRects(const QRectF *, int) override {}
    void drawEllipse(const QRect &) override {}
    void drawEllipse(const QRectF &) override {}
    void drawPoints(const QPoint *, int) override {}
    void drawPoints(const QPointF *, int) override {}
    void drawPolygon(const QPoint *, int, PolygonDrawMode) override {}
    void drawPolygon(const QPointF *, int, PolygonDrawMode) override {}
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override {}
    void drawTextItem(const QPointF &, const QTextItem &) override {}
    Type type() const override { return User; }
};

class BlindDevice : public Test::PaintRecorder
{
public:
    BlindDevice()
        : PaintRecorder(QSize(imageSize, imageSize))
    {}

    QPaintEngine *paintEngine() const override { return &m_engine; }

private:
    mutable BlindEngine m_engine;
};

// Most paints are for what the item computes in them: what Qt does with the calls takes a hundred
// times as long.
void paint(ZaItem &item)
{
    BlindDevice device;
    QPainter painter(&device);
    item.paint(&painter);
}

Drawing painted(ZaItem &item)
{
    Test::PaintRecorder recorder(QSize(imageSize, imageSize));
    QPainter painter(&recorder);
    item.paint(&painter);
    painter.end();
    return recorder.calls();
}

void paintPixels(ZaItem &item)
{
    QImage image(imageSize, imageSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    item.paint(&painter);
}

void setGeometry(ZaItem &item, double x, double y, double width, double height)
{
    item.geometryChanged(QRectF(x, y, width, height), QRectF());
}

// The pipe object with a number, leaving the view as it was.
PipeBase &objectOf(ZaItem &item, int number)
{
    const int viewObject = item.viewObject();
    item.setViewMode(number);
    PipeBase &object = item.getCurrentViewObject();
    item.setViewMode(viewObject);
    return object;
}

const Pipe &pipeOf(ZaItem &item)
{
    return static_cast<const Pipe &>(objectOf(item, 0));
}

bool isBetween(double value, double low, double high)
{
    return value >= low && value <= high;
}

bool isRegular(const Vec3 &p)
{
    constexpr double farthestM = 1e6;
    return isBetween(p.x, -farthestM, farthestM) && isBetween(p.y, -farthestM, farthestM) &&
           isBetween(p.z, -farthestM, farthestM);
}

// A pipe and a view that somebody could have in front of him.
bool isRegular(const PipeBase &pipe)
{
    const QRectF &area = pipe.camera.viewport;
    return isBetween(pipe.getDiameterM(), 0.01, 100) && isBetween(pipe.camera.fovYDEG, 5, 120) &&
           isBetween(area.width(), 16, 10000) && isBetween(area.x(), -10000, 10000) &&
           isBetween(area.y(), -10000, 10000) && isRegular(pipe.camera.eye);
}

void writeProperty(ZaItem &item, FuzzInput &input)
{
    static const char *const flags[] = {"rearCircleActive", "viewDownstream", "useDistanceLasers"};
    static const char *const integers[] = {"clock", "viewObject", "viewStyle", "measureType",
                                           "measureUnit"};
    static const char *const numbers[] = {"diameter", "percentage", "cameraHeight", "angle",
                                          "vertFov"};
    const int which = input.choice(60); // a multiple of every table's size
    switch (input.choice(5)) {
    case 0:
        item.setProperty(flags[which % 3], input.choice(2) == 1);
        break;
    case 1:
        item.setProperty(integers[which % 5], input.takeInt());
        break;
    case 2:
        item.setProperty("iWantToMeasure", QLatin1String(kinds[which % kindCount]));
        break;
    default:
        item.setProperty(numbers[which % 5], input.takeDouble());
    }
}

void gesture(ZaItem &item, FuzzInput &input)
{
    const int which = input.choice(9);
    const double a = input.takeDouble();
    const double b = input.takeDouble();
    switch (which) {
    case 0:
        item.move(a, b);
        break;
    case 1:
        item.rotate(a);
        break;
    case 2: {
        const double scale = input.takeDouble();
        item.moveScaleRotate(a, b, scale, input.takeDouble());
        break;
    }
    case 3: {
        const double width = input.takeDouble();
        setGeometry(item, a, b, width, input.takeDouble());
        break;
    }
    case 4:
        item.requestCameraCalibration(a);
        break;
    case 5:
        item.undo();
        break;
    case 6:
        item.clearMeasurementPoints();
        break;
    default:
        item.mouseClick(a, b);
    }
}

void checkState(ZaItem &item)
{
    const Pipe &pipe = pipeOf(item);
    FUZZ_VERIFY(item.isTwoHitpointList() == (pipe.hitPoints.size() == 2));
    for (int number = 0; number < 4; ++number) {
        const PipeBase &object = objectOf(item, number);
        FUZZ_VERIFY(object.camera.modelViewStack.empty());
        FUZZ_VERIFY(isBetween(object.cameraHeight, 0, 1));
    }
    FUZZ_VERIFY(isBetween(pipe.cylinder.crossSectDistancePercent, 0, 1));
}

void checkMeasures(ZaItem &item)
{
    const Pipe &pipe = pipeOf(item);
    bool isMeasurable = isRegular(pipe) && !pipe.hitPoints.empty() && item.viewObject() == 0 &&
                        isBetween(pipe.laserScale, -1e6, 1e6) &&
                        std::isfinite(pipe.cylinder.waterLevelPercent);
    for (const HitPoint &point : pipe.hitPoints) {
        isMeasurable = isMeasurable && isRegular(point.position);
    }
    if (isMeasurable && pipe.observable != ObservableType::NothingObserved) {
        FUZZ_VERIFY(std::isfinite(item.measure1()) && std::isfinite(item.measure2()));
    }
}

// Clicks right after a paint: the new point is drawn where the click was.
void checkClick(ZaItem &item, FuzzInput &input)
{
    constexpr double largestTurnDeg = 60;
    const double roll = input.take<std::uint8_t>();
    const QPoint pixel(input.take<std::uint16_t>() % 1024, input.take<std::uint16_t>() % 1024);
    item.rotate(roll);
    paint(item);
    const Pipe &pipe = pipeOf(item);
    const std::size_t before = pipe.hitPoints.size();
    const QPointF corner = pipe.camera.viewport.topLeft();
    item.mouseClick(corner.x() + pixel.x() + 0.25, corner.y() + pixel.y() + 0.25);
    const Vec2 turned = pipe.rotationCorrector.touchRotation;
    const double largest = std::max(std::abs(turned.x), std::abs(turned.y));
    const bool onWall = pipe.measureMode == MeasureMode::NoMeasure ||
                        pipe.measureMode == MeasureMode::PipeDimension;
    if (item.viewObject() != 0 || pipe.hitPoints.size() != before + 1 || !isRegular(pipe) ||
        !(largest * pipe.camera.fovYDEG / 2 < largestTurnDeg) || !onWall) {
        return;
    }
    MiniGL camera = pipe.camera;
    camera.modelViewMatrix.lookAt(camera.eye, camera.center, camera.up);
    camera.rotateByTouchRotationVector(turned);
    camera.modelViewMatrix.rotate(roll, 0, 0, 1);
    // A camera on the wall picks itself below its feet, which has no pixel.
    const Vec3 picked = pipe.hitPoints.back().position;
    constexpr double nearestInDiameters = 0.01;
    if (std::abs(camera.modelViewMatrix.multiply(picked).z) <
        nearestInDiameters * pipe.getDiameterM()) {
        return;
    }
    Mat4 toPixels;
    camera.combinedMatrix(toPixels);
    Vec2 drawn;
    toPixels.multiply(picked, drawn);
    constexpr double tolerancePx = 0.01;
    FUZZ_VERIFY(std::abs(drawn.x - corner.x() - pixel.x() - 0.5) < tolerancePx);
    FUZZ_VERIFY(std::abs(drawn.y - corner.y() - pixel.y() - 0.5) < tolerancePx);
}

// Sets every control to a value that an operator could choose.
void setProperly(ZaItem &item, const char *kind)
{
    setGeometry(item, 0, 0, imageSize, imageSize);
    item.setProperty("iWantToMeasure", QString());
    item.setProperty("iWantToMeasure", QLatin1String(kind));
    item.setProperty("diameter", 250.0);
    item.setProperty("percentage", 35.0);
    item.setProperty("vertFov", 40.0);
    item.setProperty("angle", 60.0);
    item.setProperty("clock", 20);
    item.setProperty("viewStyle", fastViewStyle);
    item.setProperty("measureUnit", 0);
    item.setProperty("viewDownstream", true);
    item.setProperty("rearCircleActive", true);
    item.setProperty("cameraHeight", 60.0);
    item.move(30, 0);
    item.setProperty("rearCircleActive", false);
    item.setProperty("cameraHeight", 40.0);
    item.move(-20, 0);
    item.rotate(15);
    item.requestCameraCalibration(0.5);
}

struct Outcome
{
    Drawing drawing;
    double measure1 = 0.0;
    bool isTwoHitpointList = false;
    double angle = 0.0;
    double percentage = 0.0;

    bool operator==(const Outcome &other) const
    {
        return isSame(drawing, other.drawing) && measure1 == other.measure1 &&
               isTwoHitpointList == other.isTwoHitpointList && angle == other.angle &&
               percentage == other.percentage;
    }
};

// A measurement of a kind from beginning to end.
Outcome measured(ZaItem &item, const char *kind)
{
    setProperly(item, kind);
    painted(item);
    for (const QPointF click :
         {QPointF(20, 20), QPointF(30, 20), QPointF(30, 30), QPointF(21, 20)}) {
        item.mouseClick(click.x(), click.y());
    }
    Outcome outcome;
    outcome.drawing = painted(item);
    outcome.measure1 = item.measure1();
    outcome.isTwoHitpointList = item.isTwoHitpointList();
    outcome.angle = item.angle();
    outcome.percentage = item.percentage();
    item.setProperty("viewObject", 3); // the joint, which no kind shows
    outcome.drawing += painted(item);
    return outcome;
}

void checkWorksAsNew(ZaItem &used, int kind)
{
    static Outcome ofNewItem[properKindCount];
    if (ofNewItem[kind].drawing.isEmpty()) {
        ZaItem fresh;
        ofNewItem[kind] = measured(fresh, kinds[kind]);
    }
    FUZZ_VERIFY(measured(used, kinds[kind]) == ofNewItem[kind]);
}

void paintSomehow(ZaItem &item, int how, FuzzInput &input)
{
    if (how == 0 && input.isOneIn(ZALENTO_FUZZ_PIXELS_ONE_IN)) {
        paintPixels(item);
    } else if (how < 4) {
        paint(item);
        checkMeasures(item);
    } else {
        checkClick(item, input);
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    FuzzInput input(data, size);
    const bool paints = input.isOneIn(ZALENTO_FUZZ_PAINTS_ONE_IN);
    const bool endsWithMeasurement = input.isOneIn(ZALENTO_FUZZ_MEASURES_ONE_IN);
    ZaItem::sharedMainPipeDiameter() = 300; // as in a new process
    const int kind = input.choice(properKindCount);
    ZaItem item;
    item.setViewStyle(fastViewStyle);
    for (int i = 0; i < mostSteps && !input.isEmpty(); ++i) {
        const int what = input.choice(32);
        if (what < 7 && paints) {
            paintSomehow(item, what, input);
        } else if (what < 20) {
            writeProperty(item, input);
        } else {
            gesture(item, input);
        }
        checkState(item);
    }
    if (endsWithMeasurement) {
        checkWorksAsNew(item, kind);
    }
    return 0;
}
