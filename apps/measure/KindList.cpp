#include "measure/KindList.h"

#include "measuring/OrderedJson.h"
#include "measuring/ValueTable.h"

#include <QJsonArray>

namespace Drevon::Zalento::Apps {

namespace {

OrderedJson kindJson(const KindInfo &info)
{
    OrderedJson json;
    json.add(QStringLiteral("kind"), info.nameText());
    json.add(QStringLiteral("title"), QLatin1String(info.title));
    json.add(QStringLiteral("description"), QLatin1String(info.description));
    json.add(QStringLiteral("percentage"), QLatin1String(info.percentage.meaning));
    json.add(QStringLiteral("options"), QJsonArray::fromStringList(optionsOf(info)));
    return json;
}

QByteArray kindText(const KindInfo &info)
{
    const QLatin1String meaning(info.percentage.meaning);
    const QString percentage =
        meaning.isEmpty() ? QString() : QStringLiteral("    --percentage is the %1\n").arg(meaning);
    return QStringLiteral("%1\n    %2\n    options: %3\n%4")
        .arg(info.nameText(), QLatin1String(info.description),
             optionsOf(info).join(QLatin1Char(' ')), percentage)
        .toUtf8();
}

QByteArray kindCsv(const KindInfo &info)
{
    return csvRecord({info.nameText(), QLatin1String(info.title), QLatin1String(info.description),
                      QLatin1String(info.percentage.meaning),
                      optionsOf(info).join(QLatin1Char(' '))});
}

QByteArray kindDocument()
{
    QVector<QByteArray> objects;
    for (const KindInfo &info : kinds()) {
        objects += kindJson(info).toLines("  ");
    }
    return jsonLines(objects, "") + "\n";
}

} // namespace

QByteArray kindList(Format format)
{
    if (format == Format::Json) {
        return kindDocument();
    }
    QByteArray list = format == Format::Csv ? "kind,title,description,percentage,options\r\n" : "";
    for (const KindInfo &info : kinds()) {
        switch (format) {
        case Format::JsonLines:
            list += kindJson(info).toLine() + "\n";
            break;
        case Format::Csv:
            list += kindCsv(info);
            break;
        default:
            list += kindText(info);
            break;
        }
    }
    return list;
}

} // namespace Drevon::Zalento::Apps
