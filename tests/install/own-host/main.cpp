#include "drevon/AppState.h"
#include "zalento/item/ZaItem.h"

#include <QGuiApplication>

using namespace Drevon;

namespace {

double diameterMM(const Zalento::ZaItem &item)
{
    return item.property("diameter").toDouble();
}

} // namespace

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    AppState::instance()->addRecord(7, QStringLiteral("8"));
    AppState::instance()->addRecord(9, QStringLiteral("10"));

    AppState::instance()->openRecord(7);
    Zalento::ZaItem item;
    const bool recordAtStart = diameterMM(item) == 203.0; // 8 inches, whole millimetres
    AppState::instance()->openRecord(9);
    const bool recordOpenedLater = diameterMM(item) == 254.0;
    AppState::instance()->openRecord(100);
    const bool unknownRecordIgnored = diameterMM(item) == 254.0;
    return recordAtStart && recordOpenedLater && unknownRecordIgnored ? 0 : 1;
}
