#include "drevon/AppState.h"
#include "drevon/CDomainObject.h"
#include "drevon/CLocaleSupport.h"
#include "drevon/Utils3d.h"
#include "support/TestCase.h"

#include <QTest>

using namespace Drevon;
using Drevon::Database::CDomainObject;
using Drevon::Shared::CLocaleSupport;
using Drevon::View3d::Utils3d;

using Record = QSharedPointer<CDomainObject>;

class TestHost : public Drevon::Zalento::Test::TestCase
{
    Q_OBJECT

private slots:
    void lineMeetsPlane_data();
    void lineMeetsPlane();
    void announcesTheActiveRecord();
    void recordsKnowTheirFields();
    void columnsHaveUnits();
};

void TestHost::lineMeetsPlane_data()
{
    QTest::addColumn<QVector3D>("direction"); // from (1, 2, 3)
    QTest::addColumn<QVector3D>("planePoint");
    QTest::addColumn<bool>("meets");
    QTest::addColumn<QVector3D>("at"); // the plane's normal is (0, 0, -2)
    const auto row = [](const char *name, const QVector3D &direction, const QVector3D &planePoint,
                        bool meets, const QVector3D &at) {
        QTest::newRow(name) << direction << planePoint << meets << at;
    };
    const QVector3D untouched(9, 9, 9);
    row("ahead", {0, 0, -1}, {50, 60, -5}, true, {1, 2, -5});
    row("behind", {0, 0, 1}, {50, 60, -5}, true, {1, 2, -5});
    row("slanting, any length", {4, 0, -8}, {0, 0, -5}, true, {5, 2, -5});
    row("starting in the plane", {4, 1, -8}, {0, 0, 3}, true, {1, 2, 3});
    row("parallel", {4, 1, 0}, {0, 0, -5}, false, untouched);
    row("lying in the plane", {4, 1, 0}, {0, 0, 3}, false, untouched);
    row("without a direction", {0, 0, 0}, {0, 0, -5}, false, untouched);
}

void TestHost::lineMeetsPlane()
{
    QFETCH(QVector3D, direction);
    QFETCH(QVector3D, planePoint);
    QVector3D out(9, 9, 9);
    QTEST(Utils3d::rayPlaneIntersection({1, 2, 3}, direction, out, planePoint, {0, 0, -2}),
          "meets");
    QTEST(out, "at");
}

void TestHost::announcesTheActiveRecord()
{
    AppState *state = AppState::instance();
    QCOMPARE(AppState::instance(), state);
    QVERIFY(state->getActiveStructure().isNull());
    int announced = 0;
    Record last;
    const auto connection =
        connect(state, &AppState::activeStructureChanged, this, [&](const Record &record) {
            ++announced;
            last = record;
            QCOMPARE(state->getActiveStructure(), record);
        });
    const Record record = Record::create();
    state->setActiveStructure(record);
    QCOMPARE(last, record);
    state->setActiveStructure(record); // the same one, with changed fields perhaps
    QCOMPARE(announced, 2);
    state->setActiveStructure({});
    QCOMPARE(announced, 3);
    QVERIFY(last.isNull());
    disconnect(connection);
}

void TestHost::recordsKnowTheirFields()
{
    CDomainObject record;
    QVERIFY(!record.readValue("OBJ_Size1").isValid());
    record.writeValue("OBJ_Size1", 300);
    record.writeValue("OBJ_Size1", "12");
    QCOMPARE(record.readValue("OBJ_Size1"), QVariant("12"));
    QVERIFY(!record.readValue("obj_size1").isValid());
}

void TestHost::columnsHaveUnits()
{
    QVERIFY(CLocaleSupport::catalogTemplateColumnUnit("OBJ_Size1").isEmpty());
    CLocaleSupport::setCatalogTemplateColumnUnit("OBJ_Size1", "inch");
    QCOMPARE(CLocaleSupport::catalogTemplateColumnUnit("OBJ_Size1"), QString("inch"));
    QVERIFY(CLocaleSupport::catalogTemplateColumnUnit("OBJ_Size2").isEmpty());
}

QTEST_APPLESS_MAIN(TestHost)
#include "tst_host.moc"
