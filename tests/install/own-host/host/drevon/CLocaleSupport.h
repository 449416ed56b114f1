#pragma once

#include <QString>

namespace Drevon::Shared {

/** A host whose catalogue is in inches. */
struct CLocaleSupport
{
    static QString catalogTemplateColumnUnit(QString const &column);
};

} // namespace Drevon::Shared
