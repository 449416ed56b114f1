#pragma once

#include "measuring/Measurement.h"

#include <QByteArray>
#include <QString>
#include <QVector>

namespace Drevon::Zalento {

/** The values measured on one picture. */
struct ValueRow
{
    QString picture;
    QString kind;
    Measuring::Measurement measurement;
};

/** Header, and a line for each value; quoted where needed (RFC 4180), '.' as decimal mark. */
QByteArray valuesAsCsv(const QVector<ValueRow> &rows);

/** An array with an object for each picture. */
QByteArray valuesAsJson(const QVector<ValueRow> &rows);

} // namespace Drevon::Zalento
