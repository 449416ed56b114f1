// The measuring line: what is drawn, measured and written.
#include "geometry/PipeView.h"
#include "render/Label.h"
#include "support/CommaLocale.h"
#include "support/PaintRecorder.h"
#include "support/TestCase.h"
#include "support/Tolerances.h"
#include "zalento/settings/UnitConv.h"

#include <QRegularExpression>

#include <memory>
#include <random>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Test;

using Kind = PaintCall::Kind;

namespace {

const double pi = std::acos(-1.0);
const QColor color(40, 50, 60, 210);
constexpr double pipeRadiusMM = 151;
const double pipeArea = pi * (pipeRadiusMM * pipeRadiusMM); // rounds as no other order does
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
};

// "line 5 2.5" with the number of points and the pen's width, "mark 6 2" with the diameter, both
// in colour where it is not the measuring line's; "box", and the text.
QString summaryOf(const PaintCall &call)
{
    const QString pen =
        QString(" %1%2").arg(call.pen.widthF()).arg(call.pen.color() == color ? "" : " black");
    switch (call.kind) {
    case Kind::PolylineFloat:
        return QString("line %1").arg(call.points.size()) + pen;
    case Kind::EllipseInt:
        return QString("mark %1").arg(call.points[1].x()) + pen;
    case Kind::RectsFloat:
        return "box";
    case Kind::Text:
        return call.text;
    default:
        return call.toString();
    }
}

std::vector<HitPoint> hitPoints(const std::vector<Vec3> &positions)
{
    return {positions.begin(), positions.end()};
}

// 10 cm wide, 1 m into the pipe.
std::vector<HitPoint> closedSquare()
{
    constexpr double h = 0.05;
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

Measured measure(const std::vector<Vec3> &positions, MeasureMode mode)
{
    std::vector<HitPoint> points = hitPoints(positions);
    return measure(frontView(0.3), points, mode);
}

// Area of a triangle from its sides, by Heron's formula in Kahan's stable order.
double heron(double a, double b, double c)
{
    if (a < b)
        std::swap(a, b);
    if (a < c)
        std::swap(a, c);
    if (b < c)
        std::swap(b, c);
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
    void callsAndValues_data()
    {
        QTest::addColumn<MeasureMode>("mode");
        QTest::addColumn<std::vector<HitPoint>>("points");
        QTest::addColumn<MeasureUnit>("unit");
        QTest::addColumn<ObservableType>("observable");
        QTest::addColumn<double>("measure1");
        QTest::addColumn<double>("measure2");
        QTest::addColumn<QString>("calls"); // texts with a full stop, which percentages keep
        using Mode = MeasureMode;
        using Type = ObservableType;
        const auto row = [](const char *name, Mode mode, const std::vector<HitPoint> &points,
                            MeasureUnit unit, Type observable, double measure1, double measure2,
                            const QString &calls) {
            QTest::newRow(name) << mode << points << unit << observable << measure1 << measure2
                                << calls;
        };
        constexpr MeasureUnit metric = MeasureUnit::Metric;
        constexpr MeasureUnit imperial = MeasureUnit::Imperial;
        const std::vector<HitPoint> square = closedSquare();
        const std::vector<HitPoint> across = hitPoints({{0, -0.0751, -1}, {0, 0.0751, -1}});
        std::vector<HitPoint> almostClosed = square;
        almostClosed[4].position.x += 1e-12;
        // There and back: the first and the last point are the same, but only two count.
        const std::vector<HitPoint> flat = hitPoints({{0, 0, -1}, {0.1, 0, -1}, {0, 0, -1}});
        // Edges of boxes with whole diagonals: 3, 7 and 9 units.
        std::vector<HitPoint> line =
            hitPoints({{0, 0, 0}, {0.01, 0.02, -0.02}, {0.04, -0.04, -0.04}, {0.12, -0.05, 0}});
        line.front().isHighlighted = true;
        line.back().isAnchor = false;
        const double share = 1e4 / pipeArea;
        const QString five = "mark 6 2, line 5 2.5, mark 6 2, box, ";
        const QString two = "mark 6 2, line 2 2.5, mark 6 2, box, ";

        row("area", Mode::CrossSection, square, metric, Type::Area, 1e4, share,
            "line 5 2.5, box, 100.0 cm², box, 14 %");
        row("area in inches", Mode::CrossSection, square, imperial, Type::Area, 1e4, share,
            "line 5 2.5, box, 15.5 inch², box, 14 %");
        row("free area", Mode::FreeCrossSection, square, metric, Type::FreeAreaPercent, 1 - share,
            untouched,
            "line 5 2.5, mark 6 2, mark 6 2, mark 6 2, mark 6 2, mark 6 2, box, 616.3 cm², box, 86 "
            "%");
        row("polygon of two corners", Mode::CrossSection, flat, metric, Type::Area, 0, 0,
            "line 3 2.5, box, 0.0 cm², box, 0 %");
        row("the same point twice", Mode::FreeCrossSection, {flat[0], flat[2]}, metric,
            Type::Length, 0, untouched, two + "0 mm");
        row("not quite closed", Mode::CrossSection, almostClosed, metric, Type::Length, 400,
            untouched, five + "40.0 cm");
        row("closed, on the wall", Mode::NoMeasure, square, metric, Type::Length, 400, untouched,
            five + "40.0 cm");
        row("two points with their share of the diameter", Mode::CrossSection, across, metric,
            Type::Length, 150.2, untouched, two + "15.0 cm (49.7 %)");
        row("two points in inches", Mode::CrossSection, across, imperial, Type::Length, 150.2,
            untouched, two + "5.91'' (49.7 %)");
        row("two points of a free section", Mode::FreeCrossSection, across, metric, Type::Length,
            150.2, untouched, two + "15.0 cm");
        row("highlighted start, end that is no anchor", Mode::PipeDimension, line, metric,
            Type::Length, 190, untouched,
            "mark 20 1, mark 6 2, line 4 2.5, mark 6 2 black, box, 19.0 cm");
        row("single point", Mode::FreeCrossSection, {flat[0]}, metric, Type::NothingObserved,
            untouched, untouched, "mark 6 2");
        row("crack without a scale", Mode::CrackWidth, across, metric, Type::NothingObserved,
            untouched, untouched, "mark 6 2, line 2 2.5, mark 6 2");
    }

    void callsAndValues()
    {
        QFETCH(MeasureMode, mode);
        QFETCH(std::vector<HitPoint>, points);
        QFETCH(MeasureUnit, unit);
        QFETCH(double, measure1);
        QFETCH(double, measure2);
        QFETCH(QString, calls);
        for (const QChar mark : {'.', ','}) {
            const DecimalMark hosts(mark);
            const auto german = mark == ',' ? std::make_unique<CommaLocale>() : nullptr;
            const Measured measured = measure(frontView(0.3), points, mode, unit);
            QTEST(measured.observable, "observable");
            COMPARE_NEAR(measured.measure1, measure1, areaTolerance);
            COMPARE_NEAR(measured.measure2, measure2, shareTolerance);
            QCOMPARE(penText(measured.penLeft), QString("#d228323c 2.5 cap 0 join 128"));
            QStringList summary;
            for (const PaintCall &call : measured.calls) {
                summary << summaryOf(call);
                if (call.kind == Kind::PolylineFloat) {
                    QCOMPARE(call.pen, measured.penLeft);
                    for (int k = 0; k < call.points.size(); ++k)
                        COMPARE_EXACT(call.points[k], points[std::size_t(k)].screenPos);
                }
            }
            // The value's mark is the host's; that of the share in brackets is not.
            QString expected = calls;
            const QRegularExpression value("box, \\d+\\.");
            const int at = value.match(calls).capturedEnd() - 1;
            QCOMPARE(summary.join(", "), at < 0 ? expected : expected.replace(at, 1, mark));
        }
    }

    void areaOfStarShapedPolygons()
    {
        std::mt19937 generator(7);
        std::uniform_real_distribution<double> radius(0.02, 0.15);
        for (int corners = 3; corners <= 361; corners += 11) {
            const Vec3 kernel(0.03, -0.04, -1);
            std::vector<Vec3> polygon;
            for (int k = 0; k < corners; ++k) {
                const double angle = 2 * pi * k / corners;
                polygon.push_back(kernel +
                                  radius(generator) * Vec3(std::cos(angle), std::sin(angle), 0));
            }
            polygon.push_back(polygon.front());
            double areaMM2 = 0;
            for (std::size_t k = 1; k < polygon.size(); ++k) {
                areaMM2 +=
                    1e6 * heron((polygon[k] - kernel).length(), (polygon[k - 1] - kernel).length(),
                                (polygon[k] - polygon[k - 1]).length());
            }
            const std::vector<Vec3> clockwise(polygon.rbegin(), polygon.rend());
            for (const std::vector<Vec3> &path : {polygon, clockwise}) {
                const Measured used = measure(path, MeasureMode::CrossSection);
                COMPARE_NEAR(used.measure1, areaMM2, areaTolerance);
                COMPARE_EXACT(used.measure2, used.measure1 / pipeArea);
                const Measured left = measure(path, MeasureMode::FreeCrossSection);
                COMPARE_EXACT(left.measure1, (pipeArea - used.measure1) / pipeArea);
            }
        }
    }

    void labelStandsInTheMiddle()
    {
        PipeView view = frontView(0.3, QRectF(30, 20, 501, 399), Vec3(0.1, 0.2, 40));
        view.camera.textBackgroundBrush = QBrush(Qt::yellow, Qt::Dense1Pattern);
        for (const MeasureMode mode : {MeasureMode::NoMeasure, MeasureMode::CrossSection}) {
            std::vector<HitPoint> points = closedSquare();
            points[2].position = Vec3(0.14, 0.02, -1);
            const QVector<PaintCall> calls = measure(view, points, mode).calls;
            QPolygonF screen;
            for (const HitPoint &point : points) {
                COMPARE_EXACT(point.screenPos, view.project(point.position));
                screen << QPointF(point.screenPos.x, point.screenPos.y);
            }
            const QVector<double> offsets =
                mode == MeasureMode::NoMeasure ? QVector<double>{-0.5} : QVector<double>{-1, 0};
            for (int k = 0; k < offsets.size(); ++k) {
                const int at = calls.size() + 2 * (k - offsets.size());
                QCOMPARE(labelFaults(calls[at], calls[at + 1], screen.boundingRect().center(),
                                     offsets[k]),
                         QByteArray());
                QCOMPARE(calls[at].brush, view.camera.textBackgroundBrush);
            }
        }
    }

    void crackIsMeasuredOnThePicture()
    {
        // A fifth of the picture's width at half a millimetre per pixel, whatever the view
        // rotation.
        const PipeView view = frontView(0.3, QRectF(30, 20, 600, 500), Vec3(0.3, 0.2, 10));
        std::vector<HitPoint> crack = hitPoints({{0.1, 0.5, 0}, {0.22, 0.5, 0}, {0.22, 0.58, 0}});
        const Measured measured =
            measure(view, crack, MeasureMode::CrackWidth, MeasureUnit::Metric, 0.5);
        QCOMPARE(measured.observable, ObservableType::Length);
        COMPARE_NEAR(measured.measure1, 60.0, millimetreTolerance);
        COMPARE_EXACT(measured.measure2, untouched);
        QCOMPARE(measured.calls.last().text, QString("60 mm"));
        COMPARE_NEAR(crack[0].screenPos, Vec2(90, 270), pixelTolerance);
        COMPARE_NEAR(crack[2].screenPos, Vec2(162, 310), pixelTolerance);
    }
};

QTEST_MAIN(TestMeasureLine)
#include "tst_measure_line.moc"
