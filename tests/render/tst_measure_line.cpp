// The measuring line: what is drawn, measured and written.
#include "geometry/PipeView.h"
#include "support/CommaLocale.h"
#include "support/PaintRecorder.h"
#include "support/TestCase.h"
#include "support/Tolerances.h"
#include "zalento/settings/UnitConv.h"

#include <QFontMetrics>

#include <memory>
#include <random>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Test;

using Kind = PaintCall::Kind;

namespace {

const double pi = std::acos(-1.0);
const QColor color(40, 50, 60, 210);
constexpr double pipeRadiusMM = 150;
constexpr double untouched = -77;

constexpr Tolerance areaTolerance{1e-6, "mm²"};
constexpr Tolerance shareTolerance{1e-12, ""};

struct Measured
{
    QVector<PaintCall> calls;
    QPen penLeft;
    ObservableType observable = ObservableType::BendAngle;
    double measure1 = untouched;
    double measure2 = untouched;

    QStringList texts() const
    {
        QStringList result;
        for (const PaintCall &call : calls) {
            if (call.kind == Kind::Text) {
                result.append(call.text);
            }
        }
        return result;
    }
};

std::vector<HitPoint> hitPoints(const std::vector<Vec3> &positions)
{
    return {positions.begin(), positions.end()};
}

std::vector<HitPoint> closedSquare(double sideM)
{
    const double h = sideM / 2;
    return hitPoints({{-h, -h, -1}, {h, -h, -1}, {h, h, -1}, {-h, h, -1}, {-h, -h, -1}});
}

Measured measure(const PipeView &view, std::vector<HitPoint> &points, MeasureMode mode,
                 MeasureUnit unit = MeasureUnit::Metric, double laserScale = 0)
{
    PaintRecorder recorder;
    QPainter painter(&recorder);
    Measured result;
    view.camera.renderMeasureLine(painter, color, 2.5, points, unit, pipeRadiusMM, laserScale, mode,
                                  result.observable, result.measure1, result.measure2);
    result.calls = recorder.calls();
    result.penLeft = painter.pen();
    return result;
}

Measured measure(std::vector<HitPoint> points, MeasureMode mode,
                 MeasureUnit unit = MeasureUnit::Metric, double laserScale = 0)
{
    return measure(frontView(0.3), points, mode, unit, laserScale);
}

// Area of a triangle from its sides, by Heron's formula in Kahan's stable order.
double heron(double a, double b, double c)
{
    if (a < b) {
        std::swap(a, b);
    }
    if (a < c) {
        std::swap(a, c);
    }
    if (b < c) {
        std::swap(b, c);
    }
    return std::sqrt((a + (b + c)) * (c - (a - b)) * (c + (a - b)) * (a + (b - c))) / 4;
}

class DecimalMark
{
public:
    explicit DecimalMark(QChar mark) { UnitConv::decimalSeparator = mark; }
    ~DecimalMark() { UnitConv::decimalSeparator = m_previous; }
    DecimalMark(const DecimalMark &) = delete;
    DecimalMark &operator=(const DecimalMark &) = delete;

private:
    QChar m_previous = UnitConv::decimalSeparator;
};

} // namespace

Q_DECLARE_METATYPE(MeasureMode)
Q_DECLARE_METATYPE(MeasureUnit)
Q_DECLARE_METATYPE(ObservableType)
Q_DECLARE_METATYPE(std::vector<HitPoint>)

class TestMeasureLine : public TestCase
{
    Q_OBJECT

private slots:
    void callsInOrder_data();
    void callsInOrder();
    void valuesAndTexts_data();
    void valuesAndTexts();
    void areaOfStarShapedPolygons();
    void lengthOfPolylines();
    void labelStandsInTheMiddle();
    void crackIsMeasuredOnThePicture();
};

void TestMeasureLine::callsInOrder_data()
{
    QTest::addColumn<MeasureMode>("mode");
    QTest::addColumn<std::vector<HitPoint>>("points");
    QTest::addColumn<double>("laserScale");
    QTest::addColumn<QStringList>("expected");
    const std::vector<HitPoint> square = closedSquare(0.1);
    std::vector<HitPoint> line = hitPoints({{0, -0.15, -1}, {0.1, 0, -2}, {0, 0.15, -3}});
    line[0].isHighlighted = true;
    line[2].isAnchor = false;
    const std::vector<HitPoint> point(line.begin(), line.begin() + 1);
    const QString thin = " #d228323c 1 square bevel";
    const QString marker = "mark 6 #d228323c 2 square bevel";
    const QString pen = " #d228323c 2.5 flat round";
    const QStringList label{"box none", "text" + thin};
    const QStringList labels = label + label;
    const QStringList first{"mark 20" + thin, marker};
    const QStringList open = first + QStringList{"line 3" + pen, "mark 6 #ff000000 2 square bevel"};

    QTest::newRow("closed, cross section")
        << MeasureMode::CrossSection << square << 0.0 << QStringList{"line 5" + pen} + labels;
    QTest::newRow("closed, free cross section")
        << MeasureMode::FreeCrossSection << square << 0.0
        << QStringList{"line 5" + pen, marker, marker, marker, marker, marker} + labels;
    QTest::newRow("closed, on the wall") << MeasureMode::PipeDimension << square << 0.0
                                         << QStringList{marker, "line 5" + pen, marker} + label;
    QTest::newRow("open") << MeasureMode::NoMeasure << line << 0.0 << open + label;
    QTest::newRow("single point") << MeasureMode::CrossSection << point << 0.0 << first;
    QTest::newRow("crack without a scale") << MeasureMode::CrackWidth << line << 0.0 << open;
    QTest::newRow("crack") << MeasureMode::CrackWidth << line << 0.5 << open + label;
}

void TestMeasureLine::callsInOrder()
{
    QFETCH(MeasureMode, mode);
    QFETCH(std::vector<HitPoint>, points);
    QFETCH(double, laserScale);
    QFETCH(QStringList, expected);
    const PipeView view = frontView(0.3);
    const Measured measured = measure(view, points, mode, MeasureUnit::Metric, laserScale);
    QStringList summary;
    for (const PaintCall &call : measured.calls) {
        switch (call.kind) {
        case Kind::PolylineFloat:
            summary << QString("line %1 %2").arg(call.points.size()).arg(penText(call.pen));
            for (int k = 0; k < call.points.size(); ++k) {
                const Vec2 &s = points[std::size_t(k)].screenPos;
                COMPARE_EXACT(Vec2(call.points[k].x(), call.points[k].y()), s);
            }
            break;
        case Kind::EllipseInt:
            summary << QString("mark %1 %2").arg(call.points[1].x()).arg(penText(call.pen));
            break;
        case Kind::RectsFloat:
            summary << "box " + penText(call.pen);
            QCOMPARE(call.brush, view.camera.textBackgroundBrush);
            break;
        default:
            QCOMPARE(call.kind, Kind::Text);
            summary << "text " + penText(call.pen);
        }
    }
    QCOMPARE(summary, expected);
    QCOMPARE(penText(measured.penLeft), QString("#d228323c 2.5 flat round"));
}

void TestMeasureLine::valuesAndTexts_data()
{
    QTest::addColumn<MeasureMode>("mode");
    QTest::addColumn<std::vector<HitPoint>>("points");
    QTest::addColumn<MeasureUnit>("unit");
    QTest::addColumn<ObservableType>("observable");
    QTest::addColumn<double>("measure1");
    QTest::addColumn<double>("measure2");
    QTest::addColumn<QStringList>("texts"); // with a full stop, which stays one in percentages
    constexpr MeasureUnit metric = MeasureUnit::Metric;
    constexpr MeasureUnit imperial = MeasureUnit::Imperial;
    const std::vector<HitPoint> square = closedSquare(0.1);
    const std::vector<HitPoint> diameter = hitPoints({{0, -0.0751, -1}, {0, 0.0751, -1}});
    std::vector<HitPoint> almostClosed = square;
    almostClosed[4].position.x += 1e-12;
    // There and back: the first and the last point are the same, but only two count.
    const std::vector<HitPoint> flat = hitPoints({{0, 0, -1}, {0.1, 0, -1}, {0, 0, -1}});
    const double pipeArea = pi * 22500;

    QTest::newRow("area") << MeasureMode::CrossSection << square << metric << ObservableType::Area
                          << 1e4 << 1e4 / pipeArea << QStringList{"100.0 cm²", "14 %"};
    QTest::newRow("area in inches")
        << MeasureMode::CrossSection << square << imperial << ObservableType::Area << 1e4
        << 1e4 / pipeArea << QStringList{"15.5 inch²", "14 %"};
    QTest::newRow("free area") << MeasureMode::FreeCrossSection << square << metric
                               << ObservableType::FreeAreaPercent << 1 - 1e4 / pipeArea << untouched
                               << QStringList{"606.9 cm²", "86 %"};
    QTest::newRow("polygon of two corners")
        << MeasureMode::CrossSection << flat << metric << ObservableType::Area << 0.0 << 0.0
        << QStringList{"0.0 cm²", "0 %"};
    QTest::newRow("not quite closed")
        << MeasureMode::CrossSection << almostClosed << metric << ObservableType::Length << 400.0
        << untouched << QStringList{"40.0 cm"};
    QTest::newRow("closed, on the wall")
        << MeasureMode::NoMeasure << square << metric << ObservableType::Length << 400.0
        << untouched << QStringList{"40.0 cm"};
    QTest::newRow("two points with their share of the diameter")
        << MeasureMode::CrossSection << diameter << metric << ObservableType::Length << 150.2
        << untouched << QStringList{"15.0 cm (50.1 %)"};
    QTest::newRow("two points in inches")
        << MeasureMode::CrossSection << diameter << imperial << ObservableType::Length << 150.2
        << untouched << QStringList{"5.91'' (50.1 %)"};
    QTest::newRow("two points of a free section")
        << MeasureMode::FreeCrossSection << diameter << metric << ObservableType::Length << 150.2
        << untouched << QStringList{"15.0 cm"};
    QTest::newRow("single point") << MeasureMode::FreeCrossSection << hitPoints({{0, 0, -1}})
                                  << metric << ObservableType::NothingObserved << untouched
                                  << untouched << QStringList();
    QTest::newRow("crack without a scale")
        << MeasureMode::CrackWidth << diameter << metric << ObservableType::NothingObserved
        << untouched << untouched << QStringList();
}

void TestMeasureLine::valuesAndTexts()
{
    QFETCH(MeasureMode, mode);
    QFETCH(std::vector<HitPoint>, points);
    QFETCH(MeasureUnit, unit);
    QFETCH(ObservableType, observable);
    QFETCH(double, measure1);
    QFETCH(double, measure2);
    QFETCH(QStringList, texts);
    for (const QChar mark : {'.', ','}) {
        const DecimalMark hosts(mark);
        const auto german = mark == ',' ? std::make_unique<CommaLocale>() : nullptr;
        const Measured measured = measure(points, mode, unit);
        QCOMPARE(measured.observable, observable);
        COMPARE_NEAR(measured.measure1, measure1, areaTolerance);
        COMPARE_NEAR(measured.measure2, measure2, shareTolerance);
        QStringList expected;
        for (QString text : texts) {
            // The first mark belongs to the value; a percentage begins with a bracket.
            const int value = text.indexOf(mark == ',' ? "." : ",");
            expected << (value < 0 ? text : text.replace(value, 1, mark));
        }
        QCOMPARE(measured.texts(), expected);
    }
}

void TestMeasureLine::areaOfStarShapedPolygons()
{
    std::mt19937 generator(7);
    std::uniform_real_distribution<double> radius(0.02, 0.15);
    for (int corners = 3; corners <= 361; corners += 11) {
        std::vector<Vec3> polygon;
        double areaMM2 = 0;
        const Vec3 kernel(0.03, -0.04, -1);
        const double step = 2 * pi / corners;
        for (int k = 0; k < corners; ++k) {
            const double r = radius(generator);
            polygon.emplace_back(kernel.x + r * std::cos(k * step),
                                 kernel.y + r * std::sin(k * step), -1);
            if (k > 0) {
                areaMM2 +=
                    heron(1000 * (polygon[std::size_t(k)] - kernel).length(),
                          1000 * (polygon[std::size_t(k) - 1] - kernel).length(),
                          1000 * (polygon[std::size_t(k)] - polygon[std::size_t(k) - 1]).length());
            }
        }
        areaMM2 += heron(1000 * (polygon.front() - kernel).length(),
                         1000 * (polygon.back() - kernel).length(),
                         1000 * (polygon.front() - polygon.back()).length());
        polygon.push_back(polygon.front());
        const std::vector<Vec3> clockwise(polygon.rbegin(), polygon.rend());
        const double share = areaMM2 / (pi * 22500);
        for (const std::vector<Vec3> &path : {polygon, clockwise}) {
            const Measured used = measure(hitPoints(path), MeasureMode::CrossSection);
            COMPARE_NEAR(used.measure1, areaMM2, areaTolerance);
            COMPARE_NEAR(used.measure2, share, shareTolerance);
            const Measured left = measure(hitPoints(path), MeasureMode::FreeCrossSection);
            COMPARE_NEAR(left.measure1, 1 - share, shareTolerance);
        }
    }
}

void TestMeasureLine::lengthOfPolylines()
{
    // A third of the wall's circumference in whole degrees: 120 chords.
    std::vector<Vec3> arc;
    for (int j = 0; j <= 120; ++j) {
        arc.emplace_back(0.15 * std::sin(j * pi / 180), 0.15 * std::cos(j * pi / 180), -0.5);
    }
    COMPARE_NEAR(measure(hitPoints(arc), MeasureMode::NoMeasure).measure1,
                 120 * 300 * std::sin(pi / 360), millimetreTolerance);
    // Edges of boxes with whole diagonals: 3, 7 and 9 units.
    const std::vector<Vec3> path{
        {0, 0, 0}, {0.01, 0.02, -0.02}, {0.04, -0.04, -0.04}, {0.12, -0.05, 0}};
    COMPARE_NEAR(measure(hitPoints(path), MeasureMode::CrossSection).measure1, 190.0,
                 millimetreTolerance);
}

void TestMeasureLine::labelStandsInTheMiddle()
{
    PipeView view = frontView(0.3, QRectF(30, 20, 501, 399), Vec3(0.1, 0.2, 40));
    view.camera.textBackgroundBrush = QBrush(Qt::yellow, Qt::Dense1Pattern);
    for (const MeasureMode mode : {MeasureMode::NoMeasure, MeasureMode::CrossSection}) {
        std::vector<HitPoint> points = closedSquare(0.1);
        points[2].position = Vec3(0.14, 0.02, -1);
        const Measured measured = measure(view, points, mode);
        QRectF bounds(view.project(points[0].position).x, view.project(points[0].position).y, 0, 0);
        for (const HitPoint &point : points) {
            const Vec2 s = view.project(point.position);
            COMPARE_EXACT(point.screenPos, s);
            bounds.setCoords(std::min(bounds.left(), s.x), std::min(bounds.top(), s.y),
                             std::max(bounds.right(), s.x), std::max(bounds.bottom(), s.y));
        }
        const QVector<double> offsets =
            mode == MeasureMode::NoMeasure ? QVector<double>{-0.5} : QVector<double>{-1, 0};
        const int firstLabel = measured.calls.size() - 2 * offsets.size();
        for (int k = 0; k < offsets.size(); ++k) {
            const PaintCall &background = measured.calls[firstLabel + 2 * k];
            const PaintCall &text = measured.calls[firstLabel + 2 * k + 1];
            const PaintRecorder device;
            const QRect box = QFontMetrics(text.font, &device).boundingRect(text.text);
            const QPointF origin =
                bounds.center() + QPointF(-0.5 * box.width(), offsets[k] * box.height());
            COMPARE_NEAR(text.points[0], origin, textTolerance);
            COMPARE_NEAR(background.points[0], origin + box.topLeft(), pixelTolerance);
            QCOMPARE(background.points[1], QPointF(box.width(), box.height()));
            QCOMPARE(background.brush, view.camera.textBackgroundBrush);
        }
    }
}

void TestMeasureLine::crackIsMeasuredOnThePicture()
{
    // A fifth of the picture's width at half a millimetre per pixel, whatever the view rotation.
    const PipeView view = frontView(0.3, QRectF(30, 20, 600, 600), Vec3(0.3, 0.2, 10));
    std::vector<HitPoint> crack = hitPoints({{0.1, 0.5, 0}, {0.22, 0.5, 0}, {0.22, 0.58, 0}});
    const Measured measured =
        measure(view, crack, MeasureMode::CrackWidth, MeasureUnit::Metric, 0.5);
    QCOMPARE(measured.observable, ObservableType::Length);
    COMPARE_NEAR(measured.measure1, 60.0, millimetreTolerance);
    COMPARE_EXACT(measured.measure2, untouched);
    QCOMPARE(measured.texts(), QStringList("60 mm"));
    COMPARE_NEAR(crack[0].screenPos, Vec2(90, 320), pixelTolerance);
    COMPARE_NEAR(crack[2].screenPos, Vec2(162, 368), pixelTolerance);
}

QTEST_MAIN(TestMeasureLine)
#include "tst_measure_line.moc"
