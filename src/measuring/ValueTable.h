#pragma once

#include "measuring/Export.h"
#include "measuring/Measurement.h"
#include "measuring/OrderedJson.h"
#include "measuring/Session.h"
#include "measuring/SessionFit.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

/**
 * @file
 * Values as tables, for other programs: CSV and JSON. Numbers are the shortest that read back as
 * the same, with '.'.
 */
namespace Drevon::Zalento::Measuring {

/** What came of measuring a picture. */
enum class Status {
    Measured,
    NoValue,
    NotSet,      ///< as MeasureState::NotSet
    NotMeasured, ///< nobody has begun to
    Failed,
};

/** "measured", "no value", "not set", "not measured" or "failed". */
ZALENTO_MEASURING_EXPORT QString statusName(Status status);

/** Where the model stands, and what its fit says. */
struct AlignmentSummary
{
    Alignment alignment;             ///< that values are measured with
    int rings = 0;                   ///< clicked
    int lines = 0;                   ///< clicked
    std::optional<AlignmentFit> fit; ///< nothing for one made by eye
};

/** The same for a session and its fit, if it has one. */
ZALENTO_MEASURING_EXPORT AlignmentSummary alignmentSummary(const Session &session,
                                                           const std::optional<AlignmentFit> &fit);

/**
 * What a fit says, in a line: "fitted to 2 joints, rms 0.8 px, largest 1.9 px".
 * @param nameOf a field that it leaves as it was
 */
ZALENTO_MEASURING_EXPORT QString fitText(const AlignmentSummary &alignment,
                                         QString (*nameOf)(AlignmentField) = alignmentFieldName);

/** What came of looking for the edges of joints. */
struct SnapSummary
{
    int edgePoints = 0; ///< that were found
    double rmsPX = 0.0; ///< of their distances from the drawn curves
    QString reason;     ///< why it was refused; empty when they were found
};

/** The lens that was taken out of the picture. */
struct LensSummary
{
    QString name;                     ///< Lens::name
    std::optional<double> k1;         ///< where it was estimated from joints
    double standardUncertainty = 0.0; ///< of #k1
};

/** What values are measured with, where they depend on it. */
struct ValueInputs
{
    std::optional<double> diameterMM; ///< inner diameter of the pipe
    std::optional<double> fovYDEG;    ///< vertical field of view
    std::optional<double> mmPerPixel; ///< scale of a crack
};

/** The values of one measurement on a picture. */
struct PictureValues
{
    QString picture;                           ///< its path as given
    PictureIdentity identity;                  ///< of the file that was read
    QString measurement;                       ///< Measurand::name
    std::optional<Kind> kind;                  ///< nothing before it is known
    Status status = Status::Failed;            ///< whether there are values, or why not
    QVector<Value> values;                     ///< in the order of their kind
    ValueInputs inputs;                        ///< what they depend on
    std::optional<FilmFrame> film;             ///< as in the session
    std::optional<double> counterM;            ///< of the film's picture, in metres
    std::optional<AlignmentSummary> alignment; ///< of the model; nothing before it is known
    std::optional<LensSummary> lens;           ///< nothing for a picture as it was taken
    std::optional<SnapSummary> snap;           ///< nothing where nobody asked for it
    QString message;                           ///< why there is no value; else empty
    QStringList written;                       ///< files

    /** "picture: measurement", or the picture alone where the measurement has no name. */
    ZALENTO_MEASURING_EXPORT QString place() const;
};

/**
 * The values of a session's measurand at hand with everything that is told beside them.
 * @param picture its path as given
 * @param fit of the session's alignment, if it has one
 */
ZALENTO_MEASURING_EXPORT PictureValues pictureValues(
    const QString &picture, const Session &session, const std::optional<AlignmentFit> &fit,
    UncertaintyEffort effort = UncertaintyEffort::Checked);

/** The same for each of its measurands, in their order. */
ZALENTO_MEASURING_EXPORT QVector<PictureValues>
allPictureValues(const QString &picture, const Session &session,
                 const std::optional<AlignmentFit> &fit,
                 UncertaintyEffort effort = UncertaintyEffort::Checked);

/** The first record of a table, with the names of its columns. */
ZALENTO_MEASURING_EXPORT QByteArray csvHeader();
/** A record for each value, or one without a value. */
ZALENTO_MEASURING_EXPORT QByteArray csvRecords(const PictureValues &picture);
/** One record of comma-separated values after RFC 4180: quoted where needed, ends with CR LF. */
ZALENTO_MEASURING_EXPORT QByteArray csvRecord(const QStringList &fields);

/** The object of a measurement in a JSON document of values. */
ZALENTO_MEASURING_EXPORT OrderedJson valuesJson(const PictureValues &picture);
/** A whole document: an array with an object for each measurement. */
ZALENTO_MEASURING_EXPORT QByteArray jsonDocument(const QVector<PictureValues> &measurements);

/** The shortest text that reads back as the same number. */
ZALENTO_MEASURING_EXPORT QString numberText(double number);

} // namespace Drevon::Zalento::Measuring
