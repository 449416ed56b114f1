#pragma once

#include "measuring/Export.h"
#include "measuring/Result.h"

#include <QString>
#include <QVector>

namespace Drevon::Zalento::Measuring {

/** One thing that is known of an inspection. */
struct RecordField
{
    QString name; ///< for people
    QString text; ///< as it is printed
};

/** What is known of an inspection, in the order in which it is told. */
using ReportRecord = QVector<RecordField>;

/**
 * Reads a record file: a JSON object whose members are texts or numbers. "place", "pipe", "date"
 * and "operator" come first, in this order, then all others under their own names, sorted. The
 * nominal size, "OBJ_Size1" with its "unit", is left out: what was measured tells its own diameter.
 * A problem names the file.
 */
ZALENTO_MEASURING_EXPORT Result<ReportRecord> loadReportRecord(const QString &path);

} // namespace Drevon::Zalento::Measuring
