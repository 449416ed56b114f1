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
    void lineMeetsPlane_data()
    {
        QTest::addColumn<QVector3D>("direction"); // from (1, 2, 3)
        QTest::addColumn<float>("planeZ");
        QTest::addColumn<bool>("meets");
        QTest::addColumn<QVector3D>("at");
        const QVector3D untouched(9, 9, 9);
        QTest::newRow("ahead") << QVector3D(0, 0, -1) << -5.0F << true << QVector3D(1, 2, -5);
        QTest::newRow("behind") << QVector3D(0, 0, 1) << -5.0F << true << QVector3D(1, 2, -5);
        QTest::newRow("slanting") << QVector3D(4, 0, -8) << -5.0F << true << QVector3D(5, 2, -5);
        QTest::newRow("from the plane")
            << QVector3D(4, 1, -8) << 3.0F << true << QVector3D(1, 2, 3);
        QTest::newRow("parallel") << QVector3D(4, 1, 0) << -5.0F << false << untouched;
        QTest::newRow("in the plane") << QVector3D(4, 1, 0) << 3.0F << false << untouched;
    }

    void lineMeetsPlane()
    {
        QFETCH(QVector3D, direction);
        QFETCH(float, planeZ);
        QVector3D out(9, 9, 9);
        QTEST(
            Utils3d::rayPlaneIntersection({1, 2, 3}, direction, out, {50, 60, planeZ}, {0, 0, -2}),
            "meets");
        QTEST(out, "at");
    }

    void announcesTheActiveRecord()
    {
        AppState *state = AppState::instance();
        QVERIFY(state->getActiveStructure().isNull());
        QVector<Record> announced;
        const auto connection =
            connect(state, &AppState::activeStructureChanged, this, [&](const Record &record) {
                announced.append(record);
                QCOMPARE(AppState::instance()->getActiveStructure(), record);
            });
        const Record record = Record::create();
        state->setActiveStructure(record);
        state->setActiveStructure(record); // the same one, with changed fields perhaps
        state->setActiveStructure({});
        QCOMPARE(announced, QVector<Record>({record, record, {}}));
        disconnect(connection);
    }
};

QTEST_APPLESS_MAIN(TestHost)
#include "tst_host.moc"
