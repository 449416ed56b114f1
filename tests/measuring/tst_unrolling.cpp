// The wall made flat: a checkerboard painted on a pipe that another camera saw comes out square.
#include "Pinhole.h"
#include "measuring/SessionFit.h"
#include "measuring/UnrollExport.h"
#include "support/TestCase.h"
#include "support/Tolerances.h"

#include <QTest>

#include <cmath>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Measuring;
using namespace Drevon::Zalento::Test;
using namespace Drevon::Zalento::Tools;

namespace {

constexpr double diameterMM = 240.0;
constexpr double fovDEG = 60.0;
constexpr double cellMM = 20.0;

// Beside the axis and turned; the mouth fills the height of the picture but for a margin.
View turnedView()
{
    View view = View::towards(0.04, -0.03, QSize(1200, 900), fovDEG);
    view.mouth = {0.05, 0.03, 1.0};
    return view;
}

Session sessionOf(const View &view, Kind kind)
{
    Session session;
    session.kind = kind;
    session.picture.size = view.picture;
    session.diameterMM = diameterMM;
    setAlignment(session, alignmentOf(view, fovDEG));
    session.offset = std::round(session.offset);
    return session;
}

// The whole offset's view, so that nothing is off by its rounding.
View roundedView()
{
    const View view = turnedView();
    return viewOf(Measuring::alignmentOf(sessionOf(view, Kind::PipeDimension)), view.picture);
}

bool isWhite(double acrossMM, double alongMM)
{
    const auto parity =
        static_cast<long>(std::floor(acrossMM / cellMM) + std::floor(alongMM / cellMM));
    return parity % 2 == 0;
}

// Clockwise from 12 o'clock around the wall, and along it; or right and down on a plane at a depth.
QImage paintedPicture(const View &view, std::optional<double> planeDepth)
{
    constexpr int samples = 3;
    QImage picture(view.picture, QImage::Format_RGB32);
    for (int i = 0; i < picture.width() * picture.height(); ++i) {
        int light = 0;
        for (int part = 0; part < samples * samples; ++part) {
            const QPointF pixel(i % picture.width() + (part % samples + 0.5) / samples,
                                i / picture.width() + (part / samples + 0.5) / samples);
            Vector place{};
            if (planeDepth) {
                const Vector ray{(pixel.x() - picture.width() * 0.5) / view.focalPX,
                                 (pixel.y() - picture.height() * 0.5) / view.focalPX, 1.0};
                const double reach =
                    (dot(view.mouth, view.axis) + *planeDepth) / dot(ray, view.axis);
                place = reach * ray - view.mouth;
            } else if (const auto wall = view.wallAt(pixel)) {
                place = *wall - view.mouth;
            }
            const double right = dot(place, view.right);
            const double down = dot(place, view.down);
            const double clock = std::atan2(right, -down);
            const bool white = planeDepth
                                   ? isWhite((right + 0.5) * diameterMM, (down + 0.5) * diameterMM)
                                   : isWhite((clock < 0 ? clock + 2 * pi : clock) / 2 * diameterMM,
                                             dot(place, view.axis) * diameterMM);
            light += white ? 255 : 0;
        }
        const int grey = light / (samples * samples);
        picture.setPixel(i % picture.width(), i / picture.width(), qRgb(grey, grey, grey));
    }
    return picture;
}

// The share of a flat checkerboard's pixels that are right, but for those within a pixel of an
// edge.
double rightShare(const QImage &flat, double mmPerPixel, const QRect &area)
{
    int right = 0;
    int counted = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            const auto isNearEdge = [&](double mm) {
                return std::abs(mm - cellMM * std::round(mm / cellMM)) < 1.5 * mmPerPixel;
            };
            const double across = (x + 0.5) * mmPerPixel;
            const double along = (y + 0.5) * mmPerPixel;
            if (isNearEdge(across) || isNearEdge(along)) {
                continue;
            }
            ++counted;
            const bool white = qGray(flat.pixel(x, y)) > 127;
            right += white == isWhite(across, along) ? 1 : 0;
        }
    }
    return static_cast<double>(right) / counted;
}

} // namespace

class TestUnrolling : public TestCase
{
    Q_OBJECT

private slots:
    void checkerboardsComeOutSquare();
    void placesGoBothWays_data();
    void placesGoBothWays();
    void refusesRanges_data();
    void refusesRanges();
    void axesFrameTheFlatPicture();
};

void TestUnrolling::checkerboardsComeOutSquare()
{
    const View view = roundedView();
    const auto wall =
        Unrolling::of(sessionOf(view, Kind::PipeDimension), UnrollRange{1.0, 0.0, 160.0});
    const QImage flat = wall->flattened(paintedPicture(view, {}));
    QCOMPARE(flat.size(), QSize(qRound(pi * diameterMM), 160));
    QCOMPARE(flat.dotsPerMeterX(), 1000);
    // The board does not close around the pipe: its last cells are narrower.
    QVERIFY(rightShare(flat, 1.0, QRect(0, 20, 740, 140)) > 0.995);

    Session section = sessionOf(view, Kind::CrossSection);
    section.percentage = 5.0;
    const auto plane = Unrolling::of(section, UnrollRange{0.5, 0.0, 0.0});
    const QImage disc = plane->flattened(paintedPicture(view, 0.5));
    QCOMPARE(disc.size(), QSize(480, 480));
    QVERIFY(rightShare(disc, 0.5, QRect(80, 80, 320, 320)) > 0.995);
}

void TestUnrolling::placesGoBothWays_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QPointF>("pixel");
    QTest::newRow("right") << int(Kind::PipeDimension) << QPointF(900, 430);
    QTest::newRow("bottom left") << int(Kind::PipeDimension) << QPointF(300, 700);
    QTest::newRow("plane") << int(Kind::CrossSection) << QPointF(700, 400);
}

void TestUnrolling::placesGoBothWays()
{
    QFETCH(int, kind);
    QFETCH(QPointF, pixel);
    Session session = sessionOf(turnedView(), static_cast<Kind>(kind));
    session.percentage = 3.0;
    const auto flat = Unrolling::of(session, UnrollRange{0.5, -50.0, 400.0});
    const QPointF back = flat->toPicture(flat->toFlat(pixel));
    COMPARE_NEAR(back.x(), pixel.x(), (Tolerance{1e-6, "px"}));
    COMPARE_NEAR(back.y(), pixel.y(), (Tolerance{1e-6, "px"}));
}

void TestUnrolling::refusesRanges_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<double>("mmPerPixel");
    QTest::addColumn<double>("to");
    QTest::addColumn<QString>("what");
    QTest::newRow("crack") << int(Kind::CrackWidth) << 1.0 << 100.0 << "lays no pipe";
    QTest::newRow("empty") << int(Kind::PipeDimension) << 1.0 << 0.0 << "is empty";
    QTest::newRow("no scale") << int(Kind::PipeDimension) << 0.0 << 100.0 << "mm per pixel";
    QTest::newRow("too large") << int(Kind::PipeDimension) << 0.01 << 1e5 << "are too many";
}

void TestUnrolling::refusesRanges()
{
    QFETCH(int, kind);
    QFETCH(double, mmPerPixel);
    QFETCH(double, to);
    QFETCH(QString, what);
    const auto flat = Unrolling::of(sessionOf(turnedView(), static_cast<Kind>(kind)),
                                    UnrollRange{mmPerPixel, 0.0, to});
    QVERIFY(!flat);
    QVERIFY2(flat.problem().text().contains(what), qPrintable(flat.problem().text()));
}

void TestUnrolling::axesFrameTheFlatPicture()
{
    const View view = roundedView();
    const auto wall =
        Unrolling::of(sessionOf(view, Kind::PipeDimension), UnrollRange{2.0, 0.0, 2000.0});
    QImage white(view.picture, QImage::Format_RGB32);
    white.fill(Qt::white);
    const QImage flat = wall->flattened(white);
    const QImage framed = withAxes(*wall, flat);
    QVERIFY(framed.width() > flat.width() && framed.height() > flat.height());
    QCOMPARE(framed.dotsPerMeterX(), 500);
    // The far wall turns grey.
    const int middle = framed.width() / 2;
    QVERIFY(qGray(framed.pixel(middle, framed.height() - 200)) < 180);
    QCOMPARE(qGray(framed.pixel(middle, 100)), 255);
    QVERIFY(wall->worthMM(900) > 10 * wall->worthMM(50));
}

QTEST_MAIN(TestUnrolling)
#include "tst_unrolling.moc"
