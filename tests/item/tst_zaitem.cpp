// The item's interface: what QML sees, what each control does and reports.
#include "support/PaintRecorder.h"
#include "support/TestCase.h"
#include "support/Tolerances.h"

#include "zalento/item/ZaItem.h"

#include <drevon/AppState.h>
#include <drevon/CLocaleSupport.h>

#include <QDir>
#include <QImage>
#include <QMetaMethod>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>
#include <functional>
#include <limits>
#include <memory>
#include <vector>

using namespace Drevon;
using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Test;

namespace {

using Record = QSharedPointer<Database::CDomainObject>;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr int unknownView = 7;

const QString nominalSize = "OBJ_Size1";

/** The object behind a view number; what is on view stays. */
template <class Object = PipeBase>
Object &objectOf(ZaItem &item, int viewObject)
{
    const int shown = item.viewObject();
    item.setViewMode(viewObject);
    auto &object = dynamic_cast<Object &>(item.getCurrentViewObject());
    item.setViewMode(shown);
    return object;
}

Pipe &pipeOf(ZaItem &item)
{
    return objectOf<Pipe>(item, 0);
}

QList<PipeBase *> objectsOf(ZaItem &item)
{
    return {&objectOf(item, 0), &objectOf(item, 1), &objectOf(item, 2), &objectOf(item, 3)};
}

void setSize(ZaItem &item, double width, double height)
{
    item.setSize(QSizeF(width, height));
}

Record recordOf(const QVariant &size)
{
    const Record record(new Database::CDomainObject);
    record->writeValue(nominalSize, size);
    return record;
}

/** Every signal of an item's own, by declaration, with its arguments. */
class SignalLog
{
public:
    explicit SignalLog(ZaItem &item)
    {
        const QMetaObject &meta = ZaItem::staticMetaObject;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            if (meta.method(i).methodType() == QMetaMethod::Signal) {
                m_spies.push_back(std::make_unique<QSignalSpy>(&item, meta.method(i)));
                m_names.append(meta.method(i).name());
            }
        }
    }

    /** What was sent since the last call: "angleChanged(30)". */
    QStringList take()
    {
        QStringList sent;
        for (std::size_t i = 0; i < m_spies.size(); ++i) {
            for (const QVariantList &arguments : qAsConst(*m_spies[i])) {
                QStringList texts;
                for (const QVariant &argument : arguments) {
                    texts.append(argument.toString());
                }
                sent.append(m_names[static_cast<int>(i)] + '(' + texts.join(", ") + ')');
            }
            m_spies[i]->clear();
        }
        return sent;
    }

private:
    std::vector<std::unique_ptr<QSignalSpy>> m_spies;
    QStringList m_names;
};

QString described(const QMetaProperty &property)
{
    QStringList words{property.name(), property.typeName()};
    words << (property.isWritable() ? "writable" : "read-only")
          << (property.hasNotifySignal() ? property.notifySignal().name() : "silent");
    const bool isPlain = property.isReadable() && property.isDesignable() &&
                         property.isScriptable() && property.isStored() && !property.isConstant();
    return (words << (isPlain ? "" : "odd")).join(' ').trimmed();
}

} // namespace

class TestZaItem : public TestCase
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void propertiesInOrder();

    void startsWithDefaults();
    void control_data();
    void control();
    void measuresAreThoseOfTheStraightPipeOnView();

    void kind_data();
    void kind();

    void record_data();
    void record();
    void itemsShareTheDiameter();

    void settingsReachThePicture();
    void pointListIsReported();
    void clicksReachTheStraightPipeOnly();
};

void TestZaItem::init()
{
    TestCase::init();
    ZaItem::sharedMainPipeDiameter() = 300;
}

void TestZaItem::cleanup()
{
    AppState::instance()->setActiveStructure({});
    TestCase::cleanup();
}

void TestZaItem::propertiesInOrder()
{
    const QMetaObject &meta = ZaItem::staticMetaObject;
    QCOMPARE(meta.className(), "Drevon::Zalento::ZaItem");
    QCOMPARE(meta.superClass(), &QQuickPaintedItem::staticMetaObject);
    QStringList properties;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        properties.append(described(meta.property(i)));
    }
    QCOMPARE(properties.join('\n'),
             QString("isTwoHitpointList bool read-only isTwoHitpointListChanged\n"
                     "useDistanceLasers bool writable silent\n"
                     "diameter double writable diameterChanged\n"
                     "percentage double writable percentageChanged\n"
                     "cameraHeight double writable cameraHeightChanged\n"
                     "rearCircleActive bool writable rearCircleActiveChanged\n"
                     "angle double writable angleChanged\n"
                     "clock int writable clockChanged\n"
                     "viewObject int writable viewModeChanged\n"
                     "viewStyle int writable viewStyleChanged\n"
                     "measureType int writable measureTypeChanged\n"
                     "measureUnit int writable measureUnitChanged\n"
                     "iWantToMeasure QString writable iWantToMeasureChanged\n"
                     "measure1 double read-only measure1Changed\n"
                     "measure2 double read-only measure2Changed\n"
                     "viewDownstream bool writable bendDownstreamChanged\n"
                     "vertFov double writable vertFovChanged"));
}

void TestZaItem::startsWithDefaults()
{
    QQuickItem parent;
    ZaItem item(&parent);
    QCOMPARE(item.parentItem(), &parent);
    const QVariantMap expected{{"isTwoHitpointList", false},
                               {"useDistanceLasers", false},
                               {"diameter", 300.0},
                               {"percentage", 0.0},
                               {"cameraHeight", 0.5},
                               {"rearCircleActive", false},
                               {"angle", 0.0},
                               {"clock", 0},
                               {"viewObject", 0},
                               {"viewStyle", 2},
                               {"measureType", 0},
                               {"measureUnit", 0},
                               {"iWantToMeasure", ""},
                               {"measure1", 0.0},
                               {"measure2", 0.0},
                               {"viewDownstream", true},
                               {"vertFov", 37.5}};
    for (auto it = expected.begin(); it != expected.end(); ++it) {
        QVERIFY2(item.property(qPrintable(it.key())) == it.value(), qPrintable(it.key()));
    }
    for (const PipeBase *object : objectsOf(item)) {
        QCOMPARE(object->diameterMM, 300.0);
        QCOMPARE(object->cameraHeight, 0.5);
        QCOMPARE(object->camera.fovYDEG, 37.5);
    }
    QCOMPARE(item.calculatePos(3.5, 4.5), QPoint(3, 4));
}

void TestZaItem::control_data()
{
    QTest::addColumn<int>("viewObject");
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("written");
    QTest::addColumn<QVariant>("read");
    QTest::addColumn<QString>("sent");
    QTest::addColumn<QString>("sentAgain");
    const auto row = [](const char *name, int viewObject, const char *property,
                        const QVariant &written, const QVariant &read, const QString &sent) {
        QTest::newRow(name) << viewObject << QByteArray(property) << written << read << sent
                            << sent;
    };
    const auto guardedRow = [](const char *name, const char *property, const QVariant &written,
                               const QVariant &read, const QString &sent) {
        QTest::newRow(name) << 0 << QByteArray(property) << written << read << sent << QString();
    };
    row("distance lasers", 0, "useDistanceLasers", true, true, "");
    row("diameter", 0, "diameter", 450.5, 450.5, "diameterChanged()");
    row("percent in, fraction out", 0, "percentage", 40.0, 0.4, "percentageChanged(40)");
    row("percentage is not clamped", 0, "percentage", 140.0, 140.0 * 0.01,
        "percentageChanged(140)");
    row("camera height", 0, "cameraHeight", 30.0, 0.3, "cameraHeightChanged(30)");
    row("camera above the pipe", 0, "cameraHeight", 150.0, 1.0, "cameraHeightChanged(150)");
    row("camera below the pipe", 0, "cameraHeight", -5.0, 0.0, "cameraHeightChanged(-5)");
    row("rear circle", 0, "rearCircleActive", true, true, "rearCircleActiveChanged(true)");
    row("angle without an object for it", 0, "angle", 60.0, 0.0, "angleChanged(60)");
    row("angle of the lateral", 1, "angle", 62.0, 62.0, "angleChanged(62)");
    row("angle below the lateral's", 1, "angle", 10.0, 30.0, "angleChanged(30)");
    row("angle above the lateral's", 1, "angle", 151.0, 150.0, "angleChanged(150)");
    row("angle of the bend, to 5 degrees", 2, "angle", 62.0, 60.0, "angleChanged(62)");
    row("angle below the lateral's at the bend", 2, "angle", 10.0, 10.0, "angleChanged(30)");
    row("angle above the bend's", 2, "angle", 120.0, 90.0, "angleChanged(120)");
    row("negative angle at the bend", 2, "angle", -20.0, 0.0, "angleChanged(30)");
    row("angle of the joint is not read", 3, "angle", 60.0, 0.0, "angleChanged(60)");
    row("angle at an unknown object", unknownView, "angle", 60.0, 0.0, "angleChanged(60)");
    row("infinite angle", 1, "angle", infinity, 150.0, "angleChanged(150)");
    row("clock", 0, "clock", 120, 0, "");
    row("object on view", 0, "viewObject", 2, 2, "viewModeChanged(2)");
    row("unknown object", 0, "viewObject", unknownView, unknownView, "viewModeChanged(7)");
    row("view style", 0, "viewStyle", 1, 1, "viewStyleChanged(1)");
    row("unknown view style", 0, "viewStyle", -9, -9, "viewStyleChanged(-9)");
    row("measure type", 0, "measureType", 5, 5, "measureTypeChanged()");
    row("unknown unit", 0, "measureUnit", 9, 9, "measureUnitChanged()");
    guardedRow("kind", "iWantToMeasure", "WaterLevel", "WaterLevel",
               "iWantToMeasureChanged(WaterLevel)");
    guardedRow("upstream", "viewDownstream", false, false, "bendDownstreamChanged(false)");
    guardedRow("downstream as before", "viewDownstream", true, true, "");
    guardedRow("field of view", "vertFov", 60.0, 60.0, "vertFovChanged(60)");
    guardedRow("field of view as before", "vertFov", 37.5, 37.5, "");
    guardedRow("field of view 0", "vertFov", 0.0, 37.5, "");
}

void TestZaItem::control()
{
    QFETCH(int, viewObject);
    QFETCH(QByteArray, property);
    QFETCH(QVariant, written);
    QFETCH(QVariant, read);
    QFETCH(QString, sent);
    QFETCH(QString, sentAgain);
    ZaItem item;
    item.setViewMode(viewObject);
    SignalLog log(item);
    QVERIFY(item.setProperty(property, written));
    QCOMPARE(item.property(property), read);
    QCOMPARE(log.take().join(' '), sent);
    QVERIFY(item.setProperty(property, written));
    QCOMPARE(log.take().join(' '), sentAgain);
}

void TestZaItem::measuresAreThoseOfTheStraightPipeOnView()
{
    ZaItem item;
    SignalLog log(item);
    Pipe &pipe = pipeOf(item);
    log.take();
    pipe.measure1 = 12;
    pipe.measure2 = 0.5;
    Q_EMIT pipe.measure1Changed(12);
    Q_EMIT pipe.measure2Changed(0.5);
    QCOMPARE(log.take(), QStringList({"measure1Changed(12)", "measure2Changed(0.5)"}));
    QCOMPARE(item.measure1(), 12.0);
    QCOMPARE(item.measure2(), 0.5);
    for (const int other : {1, 2, 3, unknownView}) {
        item.setViewMode(other);
        QCOMPARE(item.measure1(), 0.0);
        QCOMPARE(item.measure2(), 0.0);
    }
}

void TestZaItem::kind_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("viewObject");
    QTest::addColumn<int>("measureMode");
    QTest::addColumn<int>("measureType");
    QTest::newRow("crack width") << "CrackWidth" << 0 << 4 << 1;
    QTest::newRow("pipe dimension") << "PipeDimension" << 0 << 1 << 1;
    QTest::newRow("water level") << "WaterLevel" << 0 << 3 << 3;
    QTest::newRow("branch angle") << "BranchAngle" << 1 << 0 << 6;
    QTest::newRow("bend angle") << "BendAngle" << 2 << 0 << 5;
    QTest::newRow("cross section") << "CrossSection" << 0 << 2 << 2;
    QTest::newRow("lower case") << "crackwidth" << 0 << 0 << 0;
    QTest::newRow("empty after another") << "" << 0 << 0 << 0;
}

void TestZaItem::kind()
{
    QFETCH(QString, kind);
    ZaItem item;
    setSize(item, 600, 600);
    item.setiWantToMeasure("another kind");
    item.setViewMode(0);
    item.mouseClick(300, 50);
    item.mouseClick(300, 550);
    item.setViewMode(3);
    item.setMeasureType(4);
    QVERIFY(item.isTwoHitpointList());
    SignalLog log(item);
    item.setiWantToMeasure(kind);
    QCOMPARE(log.take(), QStringList({"iWantToMeasureChanged(" + kind + ')',
                                      "isTwoHitpointListChanged(false)"}));
    QTEST(item.viewObject(), "viewObject");
    QTEST(static_cast<int>(pipeOf(item).measureMode), "measureMode");
    QTEST(item.measureType(), "measureType");
    QVERIFY(pipeOf(item).hitPoints.empty());
}

void TestZaItem::record_data()
{
    QTest::addColumn<QVariant>("size");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<bool>("isTaken");
    QTest::addColumn<double>("diameterMM");
    QTest::newRow("millimetres") << QVariant(250) << "mm" << true << 250.0;
    QTest::newRow("inches lose the fraction") << QVariant(8) << "inch" << true << 203.0;
    QTest::newRow("feet lose the fraction") << QVariant(1) << "ft" << true << 304.0;
    QTest::newRow("metres count a hundred") << QVariant(3) << "m" << true << 300.0;
    QTest::newRow("metres beyond an int") << QVariant(30000000) << "m" << true << 3e9;
    QTest::newRow("no unit") << QVariant(250) << "" << true << 250.0;
    QTest::newRow("unit in capitals") << QVariant(8) << "INCH" << true << 8.0;
    QTest::newRow("whole number as text") << QVariant("250") << "mm" << true << 250.0;
    QTest::newRow("fraction is rounded") << QVariant(250.6) << "mm" << true << 251.0;
    QTest::newRow("fraction as text") << QVariant("250.5") << "mm" << false << 300.0;
    QTest::newRow("words") << QVariant("egg-shaped") << "mm" << false << 300.0;
    QTest::newRow("no field") << QVariant() << "mm" << false << 300.0;
    QTest::newRow("zero") << QVariant(0) << "mm" << true << 0.0;
}

void TestZaItem::record()
{
    QFETCH(QVariant, size);
    QFETCH(QString, unit);
    QFETCH(bool, isTaken);
    QFETCH(double, diameterMM);
    Shared::CLocaleSupport::setCatalogTemplateColumnUnit(nominalSize, unit);
    ZaItem item;
    QSignalSpy changed(&item, &ZaItem::diameterChanged);
    AppState::instance()->setActiveStructure(recordOf(size));
    QCOMPARE(ZaItem().diameter(), diameterMM); // made while the record is active
    AppState::instance()->setActiveStructure({});
    QCOMPARE(item.diameter(), diameterMM);
    QCOMPARE(ZaItem::sharedMainPipeDiameter(), diameterMM);
    QCOMPARE(changed.count(), isTaken ? 1 : 0);
}

void TestZaItem::itemsShareTheDiameter()
{
    ZaItem first;
    first.setDiameter(450);
    const ZaItem second;
    QCOMPARE(second.diameter(), 450.0);
    ZaItem::sharedMainPipeDiameter() = 200;
    QCOMPARE(first.diameter(), 450.0);
    QSignalSpy changed(&first, &ZaItem::diameterChanged);
    first.refreshMainPipeDiameter();
    QCOMPARE(first.diameter(), 200.0);
    QCOMPARE(changed.count(), 1);
}

void TestZaItem::settingsReachThePicture()
{
    ZaItem item;
    setSize(item, 600, 600);
    item.setiWantToMeasure("CrackWidth");
    item.mouseClick(10, 10);
    item.mouseClick(20, 10);
    const auto pens = [&item] {
        PaintRecorder recorder;
        QPainter painter(&recorder);
        item.paint(&painter);
        painter.end();
        QStringList colours;
        for (const PaintCall &call : recorder.calls()) {
            colours.append(call.pen.color().name());
        }
        colours.removeDuplicates();
        return colours;
    };
    ZASettings settings;
    settings.colMeasures = QColor("#123456");
    settings.MeasureUnit = MeasureUnit::Imperial;
    SignalLog log(item);
    item.setSettings(settings);
    QCOMPARE(log.take(), QStringList("measureUnitChanged()"));
    QVERIFY(pens().contains("#123456") && !pens().contains("#00ffff"));
    log.take();
    settings.colMeasures = QColor();
    item.setSettings(settings);
    QCOMPARE(log.take(), QStringList());
    QVERIFY(pens().contains("#123456"));
}

void TestZaItem::pointListIsReported()
{
    ZaItem item;
    setSize(item, 600, 600);
    item.setiWantToMeasure("CrackWidth");
    SignalLog log(item);
    const auto clicked = [&](double x) {
        item.mouseClick(x, 5);
        return log.take().join(' ');
    };
    QCOMPARE(clicked(1), QString());
    QCOMPARE(clicked(2), QString("isTwoHitpointListChanged(true)"));
    QVERIFY(item.isTwoHitpointList());
    QCOMPARE(clicked(3), QString("isTwoHitpointListChanged(false)"));
    item.undo();
    QCOMPARE(log.take(), QStringList("isTwoHitpointListChanged(true)"));
    item.clearMeasurementPoints();
    QCOMPARE(log.take(), QStringList("isTwoHitpointListChanged(false)"));
    item.undo();
    QCOMPARE(log.take(), QStringList());
    QVERIFY(pipeOf(item).hitPoints.empty());
}

void TestZaItem::clicksReachTheStraightPipeOnly()
{
    ZaItem item;
    setSize(item, 600, 600);
    item.setiWantToMeasure("CrackWidth");
    for (const int viewObject : {1, 2, 3, unknownView, -1}) {
        item.setViewMode(viewObject);
        item.mouseClick(10, 10);
        QVERIFY(pipeOf(item).hitPoints.empty());
    }
}

QTEST_MAIN(TestZaItem)
#include "tst_zaitem.moc"
