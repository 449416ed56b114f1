#pragma once

#include <QString>

#include <optional>

namespace Drevon::Zalento {

/** The part of an inspection record that the measuring item reads. */
struct PipeRecord
{
    int nominalSize = 0; ///< in #unit
    QString unit;        ///< "mm", "inch" or "ft"
};

/**
 * Reads a record file: a JSON object with the whole number "OBJ_Size1" and, unless it is in
 * millimetres, its "unit".
 * @param problem on failure: what is wrong, naming the file
 */
std::optional<PipeRecord> loadPipeRecord(const QString &path, QString &problem);

/** What is wrong with a record; empty when nothing is. */
QString recordProblem(const PipeRecord &record);

/** Makes the record the host's active structure; every measuring item takes its diameter. */
void activate(const PipeRecord &record);

} // namespace Drevon::Zalento
