// What the item paints, when it paints, and that no input ends or spoils it.
#include "support/PaintRecorder.h"
#include "support/TestCase.h"

#include "zalento/item/ZaItem.h"
#include "zalento/settings/UnitConv.h"

#include <QImage>
#include <QPainter>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>
#include <functional>
#include <limits>
#include <memory>

using namespace Drevon;
using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Test;

namespace {

using Action = std::function<void(ZaItem &)>;

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double largest = std::numeric_limits<double>::max();
constexpr double smallest = std::numeric_limits<double>::denorm_min();

constexpr QSize areaPx(800, 600);
constexpr QSize cornerPx(200, 150); // enough of it where pixels are painted

const QStringList kinds{"CrackWidth", "PipeDimension", "WaterLevel",  "BranchAngle",
                        "BendAngle",  "CrossSection",  "unknown kind"};

class CountedItem : public ZaItem
{
public:
    int paints = 0;

    void paint(QPainter *painter) override
    {
        ++paints;
        ZaItem::paint(painter);
    }
};

/** Has the scene graph make a frame, for which it asks whatever wants to be painted. */
bool showFrame(QQuickWindow &window)
{
    QSignalSpy frames(&window, &QQuickWindow::frameSwapped);
    window.update();
    return frames.wait();
}

/** Paints on real pixels, where coordinates can be too much for the rasteriser. */
void paintPixels(ZaItem &item)
{
    QImage image(cornerPx, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    item.paint(&painter);
}

/** The painter calls of one paint. */
QStringList paintCalls(ZaItem &item)
{
    PaintRecorder recorder(areaPx);
    QPainter painter(&recorder);
    item.paint(&painter);
    return recorder.log();
}

/** An object as a new item has it, of 300 mm. */
template <class Object>
std::unique_ptr<PipeBase> newObject()
{
    auto object = std::make_unique<Object>();
    object->diameterMM = 300;
    object->setDiameterM(0.3);
    object->camera.onResize(QRectF(100, 0, 600, 600));
    return object;
}

std::unique_ptr<PipeBase> newObject(int viewObject)
{
    switch (viewObject) {
    case 1:
        return newObject<PipeLateral>();
    case 2:
        return newObject<PipeBend>();
    case 3:
        return newObject<PipeJoint>();
    default:
        return newObject<Pipe>();
    }
}

void paintAndClickInEveryKind(ZaItem &item)
{
    for (const QString &kind : kinds) {
        item.setiWantToMeasure(kind);
        paintPixels(item);
        for (const QPointF &place : {QPointF(200, 300), QPointF(400, 100), QPointF(600, 500)}) {
            item.mouseClick(place.x(), place.y());
        }
        paintPixels(item);
    }
    item.setViewMode(3); // the joint, which no kind shows
    paintPixels(item);
}

/** Gives every control a valid value, whatever stood there. */
void setUp(ZaItem &item)
{
    item.setSize(areaPx);
    item.setiWantToMeasure("");
    item.setViewStyle(2);
    item.setMeasureUnit(0);
    item.setMeasureType(0);
    item.setDiameter(300);
    item.setFovDeg(40);
    item.setRearCircleActive(true);
    item.setCameraHeight(60);
    item.move(10, 0);
    item.setRearCircleActive(false);
    item.setCameraHeight(45);
    item.move(20, 0);
    item.rotate(5);
    item.setViewDownstream(true);
    item.setAngle(60);
    item.setClock(15);
    item.setPercentage(30);
    item.requestCameraCalibration(0.5);
    item.setiWantToMeasure("CrossSection");
    item.setPercentage(40);
}

/** What an item shows and measures in every kind. */
QStringList behaviour(ZaItem &item)
{
    QStringList lines;
    for (const QString &kind : kinds) {
        item.setiWantToMeasure(kind);
        for (const QPointF &place : {QPointF(390, 200), QPointF(420, 380), QPointF(300, 330)}) {
            item.mouseClick(place.x(), place.y());
        }
        lines << kind << paintCalls(item)
              << QString("measures %1 %2").arg(item.measure1()).arg(item.measure2());
    }
    return lines;
}

QStringList behaviourOfNewItem()
{
    ZaItem item;
    setUp(item);
    return behaviour(item);
}

} // namespace

Q_DECLARE_METATYPE(Action)

class TestItemPainting : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void cleanupTestCase() { m_window.reset(); }

    void paintsTheObjectOnViewAlone_data();
    void paintsTheObjectOnViewAlone();
    void unitReachesTheLabels();
    void paintsAfterEveryChange_data();
    void paintsAfterEveryChange();
    void paintsNothingWithoutArea();

    void survives_data();
    void survives();
    void angleObjectsBeforeAnyAngle();

private:
    std::unique_ptr<QQuickWindow> m_window;
};

void TestItemPainting::initTestCase()
{
    m_window = std::make_unique<QQuickWindow>();
    m_window->resize(cornerPx);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void TestItemPainting::cleanup()
{
    ZaItem::sharedMainPipeDiameter() = 300;
    TestCase::cleanup();
}

void TestItemPainting::paintsTheObjectOnViewAlone_data()
{
    QTest::addColumn<int>("viewObject");
    QTest::addColumn<int>("viewStyle");
    for (const int viewObject : {0, 1, 2, 3, 7}) {
        for (const int viewStyle : {0, 1, 2}) {
            QTest::addRow("object %d, style %d", viewObject, viewStyle) << viewObject << viewStyle;
        }
    }
}

void TestItemPainting::paintsTheObjectOnViewAlone()
{
    QFETCH(int, viewObject);
    QFETCH(int, viewStyle);
    ZaItem item;
    item.setSize(areaPx);
    item.setViewMode(viewObject);
    item.setViewStyle(viewStyle);
    item.moveScaleRotate(20.6, 0, 3, 70); // offsets add up before they lose the fraction
    item.moveScaleRotate(10.6, 0, 2, 25);
    const QStringList painted = paintCalls(item);

    const std::unique_ptr<PipeBase> object = newObject(viewObject);
    const QPoint offset(31, 0);
    const Vec3 rotation =
        object->getNewImageRotationToKeepRearCircleInsideFrontCircle(offset, Vec3(0, 0, 25));
    PaintRecorder recorder(areaPx);
    QPainter painter(&recorder);
    painter.setRenderHint(QPainter::Antialiasing);
    object->render(painter, ViewStyle(viewStyle), ZASettings(), rotation, offset);
    QCOMPARE(painted, recorder.log());
    const bool drawsInEveryStyle = viewObject == 3;
    QCOMPARE(painted.isEmpty(), viewStyle == 0 && !drawsInEveryStyle);
}

void TestItemPainting::unitReachesTheLabels()
{
    ZaItem item;
    item.setSize(areaPx);
    item.setiWantToMeasure("PipeDimension");
    item.mouseClick(400, 50);
    item.mouseClick(400, 550);
    const auto label = [&item] {
        PaintRecorder recorder(areaPx);
        QPainter painter(&recorder);
        item.paint(&painter);
        const QVector<PaintCall> texts = recorder.calls(PaintCall::Kind::Text);
        return texts.isEmpty() ? QString() : texts.last().text;
    };
    const QString metric = label();
    QCOMPARE(metric, UnitConv::lenStr(item.measure1(), MeasureUnit::Metric));
    item.setMeasureUnit(1);
    QCOMPARE(label(), UnitConv::lenStr(item.measure1(), MeasureUnit::Imperial));
    QVERIFY(label() != metric);
}

void TestItemPainting::paintsAfterEveryChange_data()
{
    QTest::addColumn<Action>("action");
    QTest::addColumn<bool>("paints");
    const auto row = [](const char *name, const Action &action, bool paints = true) {
        QTest::newRow(name) << action << paints;
    };
    row("diameter", [](ZaItem &item) { item.setDiameter(300); });
    row("shared diameter", [](ZaItem &item) { item.refreshMainPipeDiameter(); });
    row("percentage", [](ZaItem &item) { item.setPercentage(0); });
    row("camera height", [](ZaItem &item) { item.setCameraHeight(50); });
    row("rear circle", [](ZaItem &item) { item.setRearCircleActive(false); });
    row("angle", [](ZaItem &item) { item.setAngle(90); });
    row("clock", [](ZaItem &item) { item.setClock(0); });
    row("object on view", [](ZaItem &item) { item.setViewMode(0); });
    row("view style", [](ZaItem &item) { item.setViewStyle(2); });
    row("measure type", [](ZaItem &item) { item.setMeasureType(0); });
    row("unit", [](ZaItem &item) { item.setMeasureUnit(0); });
    row("measure settings", [](ZaItem &item) { item.setMeasureSettings({}); });
    row("kind", [](ZaItem &item) { item.setiWantToMeasure("WaterLevel"); });
    row("viewing direction", [](ZaItem &item) { item.setViewDownstream(false); });
    row("field of view", [](ZaItem &item) { item.setFovDeg(40); });
    row("move", [](ZaItem &item) { item.move(0, 0); });
    row("rotate", [](ZaItem &item) { item.rotate(0); });
    row("pinch", [](ZaItem &item) { item.moveScaleRotate(0, 0, 1, 0); });
    row("click", [](ZaItem &item) { item.mouseClick(0, 0); });
    row("clear", [](ZaItem &item) { item.clearMeasurementPoints(); });
    row("undo", [](ZaItem &item) { item.undo(); });
    row("calibration", [](ZaItem &item) { item.requestCameraCalibration(1); });
    row("several changes at once", [](ZaItem &item) {
        item.rotate(1);
        item.setDiameter(200);
    });
    row(
        "distance lasers", [](ZaItem &item) { item.setUseDistanceLasers(true); }, false);
    row(
        "kind as before", [](ZaItem &item) { item.setiWantToMeasure(""); }, false);
    row(
        "viewing direction as before", [](ZaItem &item) { item.setViewDownstream(true); }, false);
    row(
        "field of view as before", [](ZaItem &item) { item.setFovDeg(37.5); }, false);
    row(
        "pinch with a roll of NaN", [](ZaItem &item) { item.moveScaleRotate(0, 0, 1, notANumber); },
        false);
    row(
        "NaN", [](ZaItem &item) { item.setDiameter(notANumber); }, false);
}

void TestItemPainting::paintsAfterEveryChange()
{
    QFETCH(Action, action);
    QFETCH(bool, paints);
    CountedItem item;
    item.setParentItem(m_window->contentItem());
    item.setSize(cornerPx);
    QVERIFY(showFrame(*m_window));
    QCOMPARE(item.paints, 1);
    action(item);
    QVERIFY(showFrame(*m_window));
    QCOMPARE(item.paints, paints ? 2 : 1);
}

void TestItemPainting::paintsNothingWithoutArea()
{
    CountedItem item;
    item.setParentItem(m_window->contentItem());
    for (const QSizeF &size : {QSizeF(0, 0), QSizeF(100, 0), QSizeF(0, 100), QSizeF(-10, 100)}) {
        item.setSize(size);
        item.update();
        QVERIFY(showFrame(*m_window));
        QCOMPARE(item.paints, 0);
    }
    item.setSize(cornerPx);
    QVERIFY(showFrame(*m_window));
    QCOMPARE(item.paints, 1);
}

void TestItemPainting::survives_data()
{
    QTest::addColumn<Action>("disturb");
    const auto everyValue = [](double value) {
        return [value](ZaItem &item) {
            for (const bool rearCircle : {true, false}) {
                item.setRearCircleActive(rearCircle);
                item.setDiameter(value);
                item.setPercentage(value);
                item.setCameraHeight(value);
                item.setAngle(value);
                item.setFovDeg(value);
                item.move(value, value);
                item.rotate(value);
                item.moveScaleRotate(value, value, value, value);
                item.requestCameraCalibration(value);
                item.mouseClick(value, value);
            }
        };
    };
    QTest::newRow("NaN everywhere") << Action(everyValue(notANumber));
    QTest::newRow("infinity everywhere") << Action(everyValue(infinity));
    QTest::newRow("minus infinity everywhere") << Action(everyValue(-infinity));
    QTest::newRow("0 everywhere") << Action(everyValue(0));
    QTest::newRow("-1 everywhere") << Action(everyValue(-1));
    QTest::newRow("180 everywhere") << Action(everyValue(180));
    QTest::newRow("largest double everywhere") << Action(everyValue(largest));
    QTest::newRow("smallest double everywhere") << Action(everyValue(smallest));
    for (const int value : {std::numeric_limits<int>::min(), -1, std::numeric_limits<int>::max()}) {
        QTest::addRow("every number out of range: %d", value) << Action([=](ZaItem &i) {
            i.setViewMode(value);
            i.setViewStyle(value);
            i.setMeasureType(value);
            i.setMeasureUnit(value);
            i.setClock(value);
            i.setMeasureSettings({0, value, value});
            i.mouseClick(300, 300);
            paintPixels(i);
        });
    }
    for (const QSizeF &size : {QSizeF(0, 0), QSizeF(1e300, 1e300), QSizeF(1, 1e9)}) {
        QTest::addRow("size %g by %g", size.width(), size.height())
            << Action([=](ZaItem &i) { i.setSize(size); });
    }
}

void TestItemPainting::survives()
{
    QFETCH(Action, disturb);
    ZaItem disturbed;
    disturbed.setSize(areaPx);
    disturb(disturbed);
    paintAndClickInEveryKind(disturbed);
    setUp(disturbed);
    QCOMPARE(behaviour(disturbed), behaviourOfNewItem());
}

void TestItemPainting::angleObjectsBeforeAnyAngle()
{
    for (const char *kind : {"BranchAngle", "BendAngle"}) {
        ZaItem item;
        item.setSize(areaPx);
        item.setiWantToMeasure(kind);
        QVERIFY2(!paintCalls(item).isEmpty(), kind);
        QVERIFY2(item.angle() >= 0, kind);
    }
}

QTEST_MAIN(TestItemPainting)
#include "tst_itempainting.moc"
