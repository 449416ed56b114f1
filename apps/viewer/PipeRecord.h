#pragma once

#include "measuring/ReportRecord.h"
#include "measuring/Result.h"

#include <QObject>
#include <QString>

namespace Drevon::Zalento {

class Guidance;

/** The part of an inspection record that the measuring item reads. */
struct PipeRecord
{
    int nominalSize = 0; ///< in #unit
    QString unit;        ///< "mm", "inch" or "ft"
};

/**
 * Reads a record file: a JSON object with the whole number "OBJ_Size1" and, unless it is in
 * millimetres, its "unit". A problem names the file.
 */
Measuring::Result<PipeRecord> loadPipeRecord(const QString &path);

/** What is wrong with a record. */
Measuring::Outcome checkRecord(const PipeRecord &record);

/** Makes the record the host's active structure; every measuring item takes its diameter. */
void activate(const PipeRecord &record);

/** The operator's way to a record: typed or from a file. */
class PipeRecords : public QObject
{
    Q_OBJECT

public:
    explicit PipeRecords(Guidance &guidance);

    /** @return what is wrong with the record; empty when it was taken */
    Q_INVOKABLE QString take(const QString &nominalSize, const QString &unit);
    Q_INVOKABLE void load(const QString &path);

    /** What the file that was loaded last tells beside the nominal size. */
    const Measuring::ReportRecord &told() const { return m_told; }

private:
    Guidance &m_guidance;
    Measuring::ReportRecord m_told;
};

} // namespace Drevon::Zalento
