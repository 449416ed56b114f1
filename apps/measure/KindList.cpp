#include "measure/KindList.h"

#include "measure/Report.h"

#include "measuring/OrderedJson.h"

#include <QJsonArray>

namespace Drevon::Zalento::Apps {

namespace {

OrderedJson kindJson(const MeasurementKind &kind)
{
    OrderedJson json;
    json.add(QStringLiteral("kind"), kind.name);
    json.add(QStringLiteral("title"), kind.title);
    json.add(QStringLiteral("description"), kind.description);
    json.add(QStringLiteral("percentage"), kind.percentageMeaning);
    json.add(QStringLiteral("options"), QJsonArray::fromStringList(optionsOf(kind)));
    return json;
}

QByteArray kindText(const MeasurementKind &kind)
{
    const QString percentage =
        kind.percentageMeaning.isEmpty()
            ? QString()
            : QStringLiteral("    --percentage is the %1\n").arg(kind.percentageMeaning);
    return QStringLiteral("%1\n    %2\n    options: %3\n%4")
        .arg(kind.name, kind.description, optionsOf(kind).join(QLatin1Char(' ')), percentage)
        .toUtf8();
}

QByteArray kindCsv(const MeasurementKind &kind)
{
    return csvLine({kind.name, kind.title, kind.description, kind.percentageMeaning,
                    optionsOf(kind).join(QLatin1Char(' '))});
}

QByteArray jsonDocument()
{
    QVector<QByteArray> kinds;
    for (const MeasurementKind &kind : measurementKinds()) {
        kinds += kindJson(kind).toLines("  ");
    }
    return jsonLines(kinds, "") + "\n";
}

} // namespace

QByteArray kindList(Format format)
{
    if (format == Format::Json) {
        return jsonDocument();
    }
    QByteArray list = format == Format::Csv ? "kind,title,description,percentage,options\n" : "";
    for (const MeasurementKind &kind : measurementKinds()) {
        switch (format) {
        case Format::JsonLines:
            list += kindJson(kind).toLine() + "\n";
            break;
        case Format::Csv:
            list += kindCsv(kind);
            break;
        default:
            list += kindText(kind);
            break;
        }
    }
    return list;
}

} // namespace Drevon::Zalento::Apps
