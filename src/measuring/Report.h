#pragma once

#include "measuring/Export.h"
#include "measuring/OutputFile.h"
#include "measuring/ReportRecord.h"
#include "measuring/Session.h"
#include "measuring/ValueTable.h"

#include <QString>
#include <QVector>

#include <memory>
#include <optional>

namespace Drevon::Zalento::Measuring {

/** One measurement on a picture, as a report tells it. */
struct ReportMeasurement
{
    PictureValues values;           ///< and what they were measured with
    std::optional<Session> session; ///< nothing where none was begun, or it could not be read
};

/**
 * What a report tells of a session's measurements.
 * @param values of all of them in their order, or of the one at hand alone
 * @param session nothing where there is none
 */
ZALENTO_MEASURING_EXPORT QVector<ReportMeasurement>
reportMeasurements(const QVector<PictureValues> &values, const std::optional<Session> &session);

/** What a report tells of one picture. */
struct ReportPicture
{
    QString path;                            ///< of the picture
    QVector<ReportMeasurement> measurements; ///< at least one, if only to tell why there is none
};

/** An inspection as it is to be reported: small beside its pictures, which are read one by one. */
struct Report
{
    ReportRecord record;             ///< what is known of the inspection
    QVector<ReportPicture> pictures; ///< in the order of their pages
};

/**
 * Writes a report as a PDF file, with texts that can be searched and their fonts: a table of all
 * pictures with their values or why there are none, then a page for each.
 *
 * A page shows the picture with its overlay, the values with their uncertainties and what the limit
 * says of them, the alignment and its quality, the record, and the pipe's cross-section to scale.
 * One picture is in memory at a time. GUI thread only; a QGuiApplication is needed.
 */
class ZALENTO_MEASURING_EXPORT ReportWriter
{
public:
    ReportWriter();
    /** What was begun and not finished leaves no file. */
    ~ReportWriter();

    /** To be called first, and before what takes time. After a problem nothing else may be. */
    Outcome open(const QString &path, Overwrite overwrite);
    /** The table of all pictures. */
    void addOverview(const Report &report);
    /** Reads the picture and adds its page. @param picture index in the report */
    void addPage(const Report &report, int picture);
    /** Puts the file in its place; on any failure what was there stays. */
    Outcome finish();

private:
    class Implementation;
    std::unique_ptr<Implementation> m_implementation;
};

} // namespace Drevon::Zalento::Measuring
