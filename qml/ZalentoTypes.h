#pragma once

#include <zalento/item/CommonConstants.h>
#include <zalento/item/ZaItem.h>

#include <QtQml/qqml.h>

// What the type registrar is told of the types of registerTypes(). Beside the types and not in
// them: a name for QML in a class is an entry of its meta-object, which hosts know as it is.

struct ZaItemType
{
    Q_GADGET
    QML_FOREIGN(Drevon::Zalento::ZaItem)
    QML_NAMED_ELEMENT(ZaItem)
};

struct CommonConstantsType
{
    Q_GADGET
    QML_FOREIGN(Drevon::CommonConstants)
    QML_NAMED_ELEMENT(CommonConstants)
    QML_UNCREATABLE("holds enumerations")
};
