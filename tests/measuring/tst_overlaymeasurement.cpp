// What Measurement tells of an item, and that it tells of every change.
#include "measuring/OverlayMeasurement.h"

#include "measuring/Replay.h"
#include "measuring/registerMeasuringTypes.h"
#include "support/TestCase.h"
#include "zalento/item/registerTypes.h"

#include <QMetaMethod>
#include <QMetaProperty>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

#include <functional>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Measuring;
using namespace Drevon::Zalento::Test;

using Action = std::function<void(ZaItem &)>;

namespace {

constexpr QSizeF itemSize(600, 600);

/** That every property that differs from before was signalled. */
class PropertyWatch
{
public:
    explicit PropertyWatch(const OverlayMeasurement &measurement)
        : m_measurement(measurement)
        , m_before(values())
    {
        for (const QMetaProperty &property : properties()) {
            m_spies.push_back(std::make_unique<QSignalSpy>(&measurement, property.notifySignal()));
        }
    }

    bool isTrue() const
    {
        const QVariantList now = values();
        for (int i = 0; i < now.size(); ++i) {
            if (now[i] != m_before[i] && m_spies[std::size_t(i)]->isEmpty()) {
                return false;
            }
        }
        return true;
    }

private:
    static QVector<QMetaProperty> properties()
    {
        const QMetaObject &meta = OverlayMeasurement::staticMetaObject;
        QVector<QMetaProperty> own;
        for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
            own.append(meta.property(i));
        }
        return own;
    }
    QVariantList values() const
    {
        QVariantList all;
        for (const QMetaProperty &property : properties()) {
            all.append(property.read(&m_measurement));
        }
        return all;
    }

    const OverlayMeasurement &m_measurement;
    QVariantList m_before;
    std::vector<std::unique_ptr<QSignalSpy>> m_spies;
};

} // namespace

Q_DECLARE_METATYPE(Action)

class TestOverlayMeasurement : public TestCase
{
    Q_OBJECT

private slots:
    void cleanup();
    void tellsOfEveryChange_data();
    void tellsOfEveryChange();
    void everyFrameIsFollowed();
    void bindsInQml();
};

void TestOverlayMeasurement::cleanup()
{
    ZaItem::sharedMainPipeDiameter() = 300;
    TestCase::cleanup();
}

void TestOverlayMeasurement::tellsOfEveryChange_data()
{
    using M = OverlayMeasurement;
    QTest::addColumn<QString>("kind");
    QTest::addColumn<Action>("action");
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("error");
    const auto row = [](const char *name, const char *kind, const Action &action, M::State state,
                        const char *text = "", const char *unit = "", const char *error = "") {
        QTest::newRow(name) << kind << action << int(state) << QString(text) << QString(unit)
                            << QString(error);
    };
    const auto twoClicks = [](ZaItem &item) {
        item.mouseClick(200, 300);
        item.mouseClick(220, 300);
    };
    row("no kind", "", twoClicks, M::Idle);
    row(
        "one point", "PipeDimension", [](ZaItem &item) { item.mouseClick(250, 200); },
        M::NeedsPoints);
    row("crack without a scale", "CrackWidth", twoClicks, M::NoScale);
    row(
        "crack", "CrackWidth",
        [=](ZaItem &item) {
            item.requestCameraCalibration(0.5);
            twoClicks(item);
        },
        M::Measured, "10 mm", "mm");
    row(
        "crack in inches", "CrackWidth",
        [=](ZaItem &item) {
            item.requestCameraCalibration(0.5);
            item.setMeasureUnit(1);
            twoClicks(item);
        },
        M::Measured, "0.39''", "mm");
    row(
        "level", "WaterLevel", [](ZaItem &item) { item.setPercentage(25); }, M::Measured, "25 %",
        "%");
    row(
        "level of an angle", "WaterLevel", [](ZaItem &item) { item.setAngle(60); }, M::NotSet);
    row(
        "branch", "BranchAngle", [](ZaItem &item) { item.setAngle(60); }, M::Measured, "60°",
        "deg");
    row(
        "size of a branch", "BranchAngle", [](ZaItem &item) { item.setPercentage(60); }, M::NotSet);
    row(
        "joint", "BendAngle",
        [](ZaItem &item) {
            item.setViewMode(3);
            item.setAngle(42);
        },
        M::Measured, "40°", "deg");
    row(
        "another kind", "BranchAngle",
        [](ZaItem &item) {
            item.setAngle(60);
            item.setiWantToMeasure("BendAngle");
        },
        M::NotSet);
    row(
        "misspelt kind", "Waterlevel", [](ZaItem &item) { item.setPercentage(25); }, M::Faulty, "",
        "",
        "iWantToMeasure: expected one of CrackWidth, PipeDimension, WaterLevel, BranchAngle, "
        "BendAngle, CrossSection, found \"Waterlevel\"");
    row(
        "no such object", "WaterLevel", [](ZaItem &item) { item.setViewMode(7); }, M::Faulty, "",
        "", "viewObject: expected a number from 0 to 3, found 7");
    row(
        "another object", "WaterLevel", [](ZaItem &item) { item.setViewMode(1); }, M::Faulty, "",
        "", "viewObject: WaterLevel is not measured on object 1");
    row(
        "diameter below 0", "WaterLevel", [](ZaItem &item) { item.setDiameter(-1); }, M::Faulty, "",
        "", "diameterMM: expected a number from 1 to 100000, found -1");
    row(
        "level above the pipe", "WaterLevel", [](ZaItem &item) { item.setPercentage(140); },
        M::Faulty, "", "", "percentage: expected a number from 0 to 100, found 140");
}

void TestOverlayMeasurement::tellsOfEveryChange()
{
    QFETCH(QString, kind);
    QFETCH(Action, action);
    ZaItem item;
    item.setSize(itemSize);
    OverlayMeasurement measurement;
    measurement.setOverlay(&item);
    item.setiWantToMeasure(kind);
    const PropertyWatch watch(measurement);
    action(item);
    item.setViewStyle(1); // a signal of the item's, whatever came before
    QVERIFY(watch.isTrue());
    QTEST(int(measurement.state()), "state");
    QTEST(measurement.text(), "text");
    QTEST(measurement.unit(), "unit");
    QTEST(measurement.error(), "error");
    const bool isMeasured = measurement.state() == OverlayMeasurement::Measured;
    QCOMPARE(measurement.value().isValid(), isMeasured);
    QCOMPARE(measurement.uncertainty().isValid(), isMeasured);
    QCOMPARE(measurement.budget().isEmpty(), !isMeasured);
    QCOMPARE(measurement.fullText().contains("±"), isMeasured);
}

// Drags and the scale have no signal of the item's.
void TestOverlayMeasurement::everyFrameIsFollowed()
{
    QQuickWindow window;
    window.resize(itemSize.toSize());
    ZaItem item(window.contentItem());
    item.setSize(itemSize);
    item.setiWantToMeasure("CrackWidth");
    item.mouseClick(200, 300);
    item.mouseClick(220, 300);
    OverlayMeasurement measurement;
    measurement.setOverlay(&item);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    item.requestCameraCalibration(0.5);
    QTRY_COMPARE(measurement.text(), QString("10 mm"));
    measurement.setOverlay(nullptr);
    QCOMPARE(measurement.state(), OverlayMeasurement::Idle);
}

// What a scene begins with was not set; an item may go before its measurement does.
void TestOverlayMeasurement::bindsInQml()
{
    registerTypes("OverlayMeasurementTest");
    registerMeasuringTypes("OverlayMeasurementTest");
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData(
        "import OverlayMeasurementTest 1.0\n"
        "Measurement {\n"
        "    property string seen: state === Measurement.NotSet ? 'not set' : fullText\n"
        "    overlay: ZaItem {\n"
        "        width: 600; height: 600\n"
        "        iWantToMeasure: 'WaterLevel'; percentage: 30\n"
        "    }\n"
        "}",
        {});
    const QScopedPointer<QObject> root(component.create());
    QVERIFY2(root, qPrintable(component.errorString()));
    auto &measurement = dynamic_cast<OverlayMeasurement &>(*root);
    QCOMPARE(root->property("seen").toString(), QString("not set"));
    measurement.setIsSet(true);
    QCOMPARE(root->property("seen").toString(), QString("30.0 % ± 1.0 %"));
    delete measurement.overlay();
    QCOMPARE(root->property("seen").toString(), QString());
}

QTEST_MAIN(TestOverlayMeasurement)
#include "tst_overlaymeasurement.moc"
