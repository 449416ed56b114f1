// What the viewer computes without a window.
#include "FieldCatalogue.h"
#include "ModelDrag.h"
#include "StageView.h"

#include "measuring/PipeView.h"
#include "support/TestCase.h"

#include <QTest>

#include <cmath>
#include <limits>

namespace Drevon::Zalento::Test {

class TestViewerParts : public TestCase
{
    Q_OBJECT

private slots:
    void modelFollowsThePointer_data();
    void modelFollowsThePointer();
    void viewKeepsThePictureInSight();
    void fieldsReadBackWhatTheyShow();
};

namespace {

// Where points on the pipe's axis are seen: in the mouth and at the far end.
QVector<QPointF> seenAxis(Measuring::Session session, const QSize &pictureSize)
{
    constexpr double farEndM = -3.0;
    session.picture.size = pictureSize;
    const Measuring::PipeView view(session);
    return {view.project(Vec3(0, 0, 0)), view.project(Vec3(0, 0, farEndM))};
}

} // namespace

void TestViewerParts::modelFollowsThePointer_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<double>("fovYDEG");
    QTest::addColumn<bool>("isFarEnd");
    QTest::addColumn<QPointF>("moved");
    QTest::newRow("pipe right") << QSize(768, 576) << 37.5 << false << QPointF(40, 0);
    QTest::newRow("pipe, upright picture") << QSize(600, 800) << 60.0 << false << QPointF(50, 20);
    QTest::newRow("far end up") << QSize(768, 576) << 37.5 << true << QPointF(0, -40);
    QTest::newRow("far end, wide view") << QSize(1920, 1080) << 60.0 << true << QPointF(-50, 30);
}

void TestViewerParts::modelFollowsThePointer()
{
    QFETCH(QSize, size);
    QFETCH(double, fovYDEG);
    QFETCH(bool, isFarEnd);
    QFETCH(QPointF, moved);
    Measuring::Session start;
    start.picture.size = size;
    start.mouthPercent = 80;
    start.fovYDEG = fovYDEG;
    start.rearCircleActive = isFarEnd;
    const int end = isFarEnd ? 1 : 0;
    const QPointF before = seenAxis(start, size)[end];
    const QPointF after = seenAxis(modelDragged(start, moved), size)[end];
    // The item drops fractions of the offset: up to one gesture unit, of which a mouth has 576.
    // The far end's turn is taken as small.
    const double slackPx = isFarEnd ? 0.04 * std::hypot(moved.x(), moved.y())
                                    : 0.8 * std::min(size.width(), size.height()) / 576.0;
    const QPointF error = after - before - moved;
    QVERIFY2(std::hypot(error.x(), error.y()) <= slackPx,
             qPrintable(QStringLiteral("off by %1, %2 px").arg(error.x()).arg(error.y())));
}

void TestViewerParts::viewKeepsThePictureInSight()
{
    StageView view;
    view.setViewSize({900, 700});
    view.setPictureSize({600, 800});
    QCOMPARE(view.toView({300, 400}), QPointF(450, 350));
    for (const double bad : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN(),
                             std::numeric_limits<double>::infinity()}) {
        view.zoom(bad);
        QVERIFY(view.isFitted());
    }
    view.zoom(1e9);
    QCOMPARE(view.scale(), StageView::largestScale);
    view.panBy(1e9, -1e9);
    const QRectF shown(view.toView({0, 0}), view.toView({600, 800}));
    QVERIFY(shown.intersects(QRectF(QPointF(0, 0), view.viewSize())));
    view.setPictureSize({1, 1});
    QCOMPARE(view.scale(), StageView::largestScale);
}

// A shown text that is committed again means the same number, in both units.
void TestViewerParts::fieldsReadBackWhatTheyShow()
{
    Measuring::Session session;
    session.diameterMM = 254.0;
    session.clockDEG = 285;
    session.calibrationText = QStringLiteral("LASER;;;12.5");
    for (const MeasureUnit unit : {MeasureUnit::Metric, MeasureUnit::Imperial}) {
        session.unit = unit;
        for (const Measuring::KindInfo &info : Measuring::kinds()) {
            session.kind = info.kind;
            const QStringList names = kindFields(session) + alignmentFields(session);
            for (const QString &name : names) {
                const Field field = fieldNamed(name, session);
                const auto value = readField(field, fieldText(field, session));
                QVERIFY2(value, qPrintable(name));
                Measuring::Session again = session;
                field.set(again, *value);
                QVERIFY2(again == session, qPrintable(name));
            }
        }
    }
    QCOMPARE(fieldText(fieldNamed(QStringLiteral("clock"), session), session),
             QStringLiteral("9.5"));
    session.kind = Measuring::Kind::BendAngle;
    const Field angle = fieldNamed(QStringLiteral("angleDEG"), session);
    angle.set(session, 12.0); // drawn in steps of five
    QCOMPARE(fieldText(angle, session), QStringLiteral("10"));
}

} // namespace Drevon::Zalento::Test

QTEST_MAIN(Drevon::Zalento::Test::TestViewerParts)
#include "tst_viewerparts.moc"
