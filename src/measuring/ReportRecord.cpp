#include "measuring/ReportRecord.h"

#include "measuring/OrderedJson.h"
#include "measuring/Text.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

namespace Drevon::Zalento::Measuring {

namespace {

constexpr qint64 largestRecordBytes = 1024 * 1024;

// Of a list or an object, which no record needs, its JSON: nothing is lost.
QString textOf(const QJsonValue &value)
{
    return value.isString() ? value.toString() : QString::fromUtf8(jsonText(value));
}

ReportRecord recordOf(QJsonObject members)
{
    ReportRecord record;
    const auto take = [&](const QString &member, const QString &name) {
        const QJsonValue value = members.take(member);
        if (!value.isUndefined() && !value.isNull()) {
            record.append({name, textOf(value)});
        }
    };
    members.remove(QStringLiteral("OBJ_Size1"));
    members.remove(QStringLiteral("unit"));
    take(QStringLiteral("place"), Text::tr("Place"));
    take(QStringLiteral("pipe"), Text::tr("Pipe"));
    take(QStringLiteral("date"), Text::tr("Date"));
    take(QStringLiteral("operator"), Text::tr("Operator"));
    for (const QString &name : members.keys()) {
        take(name, name);
    }
    return record;
}

} // namespace

Result<ReportRecord> loadReportRecord(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return Problem{path, Text::tr("cannot be read: %1").arg(file.errorString())};
    }
    const QByteArray content = file.read(largestRecordBytes + 1);
    if (content.size() > largestRecordBytes) {
        return Problem{path, Text::tr("is too large for a record file")};
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(content, &error);
    if (error.error != QJsonParseError::NoError) {
        return Problem{path, Text::tr("expected a JSON object: %1").arg(error.errorString())};
    }
    if (!document.isObject()) {
        return Problem{path, Text::tr("expected a JSON object, found a list")};
    }
    return recordOf(document.object());
}

} // namespace Drevon::Zalento::Measuring
