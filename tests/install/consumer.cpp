// Uses a header of every kind: inline arithmetic, a compiled class, the item and the host's part.
#include "drevon/AppState.h"
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
    return diameterTaken && vectorsWork ? 0 : 1;
}
