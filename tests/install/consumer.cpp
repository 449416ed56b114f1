// Uses a header of every kind: inline arithmetic, a compiled class, the item, the host's part, and
// the measuring library.
#include "drevon/AppState.h"
#include "measuring/Measurement.h"
#include "zalento/item/ZaItem.h"
#include "zalento/math/Vec3.h"

#include <QGuiApplication>

using namespace Drevon;

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    auto record = QSharedPointer<Database::CDomainObject>::create();
    record->writeValue(QStringLiteral("OBJ_Size1"), 450);
    AppState::instance()->setActiveStructure(record);

    Zalento::ZaItem item;
    const bool diameterTaken = item.property("diameter").toDouble() == 450.0;
    const bool vectorsWork = Zalento::Vec3(3, 4, 0).length() == 5;
    Zalento::Measuring::Session session;
    session.kind = Zalento::Measuring::Kind::WaterLevel;
    session.percentage = 25;
    const auto measured = Zalento::Measuring::measure(session);
    const bool measures = measured.values.size() == 1 && measured.values[0].number == 25;
    return diameterTaken && vectorsWork && measures ? 0 : 1;
}
