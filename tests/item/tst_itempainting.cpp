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
constexpr QSize cornerPx(200, 150);

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

} // namespace

Q_DECLARE_METATYPE(Action)

class TestItemPainting : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void cleanupTestCase() { m_window.reset(); }

    void paintsAfterEveryChange_data();
    void paintsAfterEveryChange();
    void paintsNothingWithoutArea();

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
    row("display settings", [](ZaItem &item) { item.setSettings({}); });
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

QTEST_MAIN(TestItemPainting)
#include "tst_itempainting.moc"
