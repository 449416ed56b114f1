#include "measure/Report.h"

#include "measuring/OrderedJson.h"

#include <QJsonArray>
#include <QLocale>

namespace Drevon::Zalento::Apps {

namespace {

QByteArray valueJson(const MeasuredValue &value)
{
    OrderedJson json;
    json.add(QStringLiteral("name"), value.name);
    json.add(QStringLiteral("number"), value.number);
    json.add(QStringLiteral("unit"), value.unit);
    json.add(QStringLiteral("text"), value.text);
    return json.toLine();
}

QByteArray valuesJson(const QVector<MeasuredValue> &values)
{
    QByteArrayList texts;
    for (const MeasuredValue &value : values) {
        texts += valueJson(value);
    }
    return "[" + texts.join(", ") + "]";
}

OrderedJson resultJson(const PictureResult &result)
{
    OrderedJson json;
    json.add(QStringLiteral("picture"), result.picture);
    if (!result.identity.size.isEmpty()) {
        json.add(QStringLiteral("size"),
                 QJsonArray{result.identity.size.width(), result.identity.size.height()});
        json.add(QStringLiteral("sha256"), QString::fromLatin1(result.identity.sha256));
    }
    json.add(QStringLiteral("kind"), result.kind);
    json.add(QStringLiteral("status"), statusName(result.status));
    json.add(QStringLiteral("values"), valuesJson(result.values));
    json.add(QStringLiteral("message"), result.message);
    json.add(QStringLiteral("written"), QJsonArray::fromStringList(result.written));
    return json;
}

QByteArray csvRows(const PictureResult &result)
{
    const QStringList common{result.picture, result.kind, statusName(result.status)};
    if (result.values.isEmpty()) {
        return csvLine(common + QStringList{{}, {}, {}, {}, result.message});
    }
    QByteArray rows;
    for (const MeasuredValue &value : result.values) {
        rows += csvLine(common + QStringList{value.name, numberText(value.number), value.unit,
                                             value.text, result.message});
    }
    return rows;
}

QByteArray textLines(const PictureResult &result)
{
    if (result.values.isEmpty()) {
        return QStringLiteral("%1: %2: %3\n")
            .arg(result.picture, statusName(result.status), result.message)
            .toUtf8();
    }
    QByteArray lines;
    for (const MeasuredValue &value : result.values) {
        lines +=
            QStringLiteral("%1: %2 %3 (%4 %5)\n")
                .arg(result.picture, value.name, value.text, numberText(value.number), value.unit)
                .toUtf8();
    }
    return lines;
}

QString csvField(QString field)
{
    const bool needsQuotes = field.contains(QLatin1Char(',')) || field.contains(QLatin1Char('"')) ||
                             field.contains(QLatin1Char('\n')) || field.contains(QLatin1Char('\r'));
    if (!needsQuotes) {
        return field;
    }
    field.replace(QLatin1Char('"'), QLatin1String("\"\""));
    return QLatin1Char('"') + field + QLatin1Char('"');
}

} // namespace

QString statusName(Status status)
{
    switch (status) {
    case Status::Measured:
        return QStringLiteral("measured");
    case Status::NoValue:
        return QStringLiteral("no value");
    case Status::Failed:
        break;
    }
    return QStringLiteral("failed");
}

QString numberText(double number)
{
    return QString::number(number, 'g', QLocale::FloatingPointShortest);
}

QByteArray csvLine(const QStringList &fields)
{
    QStringList quoted;
    for (const QString &field : fields) {
        quoted += csvField(field);
    }
    return quoted.join(QLatin1Char(',')).toUtf8() + "\n";
}

QByteArray Report::start() const
{
    switch (m_format) {
    case Format::Json:
        return "[";
    case Format::Csv:
        return "picture,kind,status,name,number,unit,text,message\n";
    default:
        return {};
    }
}

QByteArray Report::result(const PictureResult &result, int number) const
{
    switch (m_format) {
    case Format::Json:
        return (number == 0 ? "\n  " : ",\n  ") + resultJson(result).toLines("  ");
    case Format::JsonLines:
        return resultJson(result).toLine() + "\n";
    case Format::Csv:
        return csvRows(result);
    case Format::Text:
        break;
    }
    return textLines(result);
}

QByteArray Report::end(int count) const
{
    if (m_format != Format::Json) {
        return {};
    }
    return count == 0 ? "]\n" : "\n]\n";
}

} // namespace Drevon::Zalento::Apps
