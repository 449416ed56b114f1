#pragma once

#include "measuring/Export.h"
#include "measuring/Measurement.h"
#include "measuring/OrderedJson.h"
#include "measuring/Session.h"

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
enum class Status { Measured, NoValue, Failed };

/** "measured", "no value" or "failed". */
ZALENTO_MEASURING_EXPORT QString statusName(Status status);

/** The values measured on one picture. */
struct PictureValues
{
    QString picture; ///< its path as given
    PictureIdentity identity;
    std::optional<Kind> kind; ///< nothing before it is known
    Status status = Status::Failed;
    QVector<Value> values;
    QString message;     ///< why there is no value; else empty
    QStringList written; ///< files
};

/** The first record of a table, with the names of its columns. */
ZALENTO_MEASURING_EXPORT QByteArray csvHeader();
/** A record for each value, or one without a value. */
ZALENTO_MEASURING_EXPORT QByteArray csvRecords(const PictureValues &picture);
/** One record of comma-separated values after RFC 4180: quoted where needed, ends with CR LF. */
ZALENTO_MEASURING_EXPORT QByteArray csvRecord(const QStringList &fields);

/** A picture's object in a JSON document of values. */
ZALENTO_MEASURING_EXPORT OrderedJson valuesJson(const PictureValues &picture);
/** A whole document: an array with an object for each picture. */
ZALENTO_MEASURING_EXPORT QByteArray jsonDocument(const QVector<PictureValues> &pictures);

/** The shortest text that reads back as the same number. */
ZALENTO_MEASURING_EXPORT QString numberText(double number);

} // namespace Drevon::Zalento::Measuring
