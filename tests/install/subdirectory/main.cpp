#include "drevon/AppState.h"
#include "zalento/item/ZaItem.h"

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
    return diameterTaken ? 0 : 1;
}
