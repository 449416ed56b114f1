#include "zalento/item/registerTypes.h"

#include "zalento/item/CommonConstants.h"
#include "zalento/item/ZaItem.h"

#include <QtQml>

namespace Drevon::Zalento {

namespace {

constexpr int majorVersion = 1;
constexpr int minorVersion = 0;

} // namespace

void registerTypes(const char *uri)
{
    qmlRegisterType<ZaItem>(uri, majorVersion, minorVersion, "ZaItem");
    qmlRegisterUncreatableType<CommonConstants>(
        uri, majorVersion, minorVersion, "CommonConstants",
        QStringLiteral("CommonConstants holds enumerations; read them as "
                       "CommonConstants.VideoWidth."));
}

} // namespace Drevon::Zalento
