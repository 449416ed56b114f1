#pragma once

#include "drevon/Export.h"

#include <QString>

namespace Drevon::Shared {

/** What the host knows of units and languages. GUI thread only. */
class DREVON_EXPORT CLocaleSupport
{
public:
    /**
     * The unit in which the catalogue stores @p column ("mm", "m", "inch", "ft");
     * empty for a column that it does not know.
     */
    static QString catalogTemplateColumnUnit(const QString &column);

    /** Sets the unit of @p column for the whole process. */
    static void setCatalogTemplateColumnUnit(const QString &column, const QString &unit);
};

} // namespace Drevon::Shared
