#include "ValueTable.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QStringList>

namespace Drevon::Zalento {

namespace {

QString quoted(const QString &text)
{
    static const QString special = QStringLiteral(",\"\r\n");
    for (const QChar c : special) {
        if (text.contains(c)) {
            QString escaped = text;
            escaped.replace(QLatin1Char('"'), QStringLiteral("\"\""));
            return QStringLiteral("\"%1\"").arg(escaped);
        }
    }
    return text;
}

QByteArray csvLine(const QStringList &fields)
{
    QStringList cells;
    for (const QString &field : fields) {
        cells.append(quoted(field));
    }
    return cells.join(QLatin1Char(',')).toUtf8() + "\r\n";
}

// The shortest text that reads back as the same number.
QString exact(double number)
{
    return QString::number(number, 'g', QLocale::FloatingPointShortest);
}

} // namespace

QByteArray valuesAsCsv(const QVector<ValueRow> &rows)
{
    QByteArray csv =
        csvLine({QStringLiteral("picture"), QStringLiteral("kind"), QStringLiteral("name"),
                 QStringLiteral("number"), QStringLiteral("unit"), QStringLiteral("text")});
    for (const ValueRow &row : rows) {
        for (const Measuring::MeasuredValue &value : row.measurement.values) {
            csv += csvLine(
                {row.picture, row.kind, value.name, exact(value.number), value.unit, value.text});
        }
    }
    return csv;
}

QByteArray valuesAsJson(const QVector<ValueRow> &rows)
{
    QJsonArray pictures;
    for (const ValueRow &row : rows) {
        QJsonArray values;
        for (const Measuring::MeasuredValue &value : row.measurement.values) {
            values.append(QJsonObject{{QStringLiteral("name"), value.name},
                                      {QStringLiteral("number"), value.number},
                                      {QStringLiteral("unit"), value.unit},
                                      {QStringLiteral("text"), value.text}});
        }
        pictures.append(QJsonObject{{QStringLiteral("picture"), row.picture},
                                    {QStringLiteral("kind"), row.kind},
                                    {QStringLiteral("values"), values}});
    }
    return QJsonDocument(pictures).toJson();
}

} // namespace Drevon::Zalento
