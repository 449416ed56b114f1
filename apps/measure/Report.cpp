#include "measure/Report.h"

namespace Drevon::Zalento::Apps {

namespace {

QString decisionOf(const Value &value)
{
    const bool isDecided = value.uncertainty && value.uncertainty->decision;
    return isDecided ? QStringLiteral(": ") + decisionText(*value.uncertainty->decision)
                     : QString();
}

QByteArray textLines(const PictureValues &result)
{
    QByteArray lines;
    if (result.alignment && result.alignment->fit) {
        lines += QStringLiteral("%1: alignment %2\n")
                     .arg(result.picture, fitText(*result.alignment))
                     .toUtf8();
    }
    if (result.values.isEmpty()) {
        return lines + QStringLiteral("%1: %2: %3\n")
                           .arg(result.picture, statusName(result.status), result.message)
                           .toUtf8();
    }
    for (const Value &value : result.values) {
        lines += QStringLiteral("%1: %2 %3 (%4 %5)%6\n")
                     .arg(result.picture, value.name, value.fullText(), numberText(value.number),
                          value.unit, decisionOf(value))
                     .toUtf8();
    }
    return lines;
}

} // namespace

QByteArray Report::start() const
{
    switch (m_format) {
    case Format::Json:
        return "[";
    case Format::Csv:
        return csvHeader();
    default:
        return {};
    }
}

QByteArray Report::result(const PictureValues &result, int number) const
{
    switch (m_format) {
    case Format::Json:
        return (number == 0 ? "\n  " : ",\n  ") + valuesJson(result).toLines("  ");
    case Format::JsonLines:
        return valuesJson(result).toLine() + "\n";
    case Format::Csv:
        return csvRecords(result);
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
