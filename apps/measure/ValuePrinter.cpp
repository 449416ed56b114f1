#include "measure/ValuePrinter.h"

#include "measuring/UncertaintyText.h"

namespace Drevon::Zalento::Apps {

namespace {

QString decisionOf(const Value &value)
{
    const bool isDecided = value.uncertainty && value.uncertainty->decision;
    return isDecided ? QStringLiteral(": ") + decisionText(*value.uncertainty->decision)
                     : QString();
}

QByteArray alignmentLine(const PictureValues &result)
{
    if (!result.alignment || !result.alignment->fit) {
        return {};
    }
    return QStringLiteral("%1: alignment %2\n")
        .arg(result.picture, fitText(*result.alignment))
        .toUtf8();
}

QByteArray textLines(const PictureValues &result)
{
    const QString place = result.place();
    if (result.values.isEmpty()) {
        return QStringLiteral("%1: %2: %3\n")
            .arg(place, statusName(result.status), result.message)
            .toUtf8();
    }
    QByteArray lines;
    for (const Value &value : result.values) {
        lines += QStringLiteral("%1: %2 %3 (%4 %5)%6\n")
                     .arg(place, value.name, inTableUnit(value).fullText(),
                          numberText(value.number), value.unit, decisionOf(value))
                     .toUtf8();
    }
    return lines;
}

} // namespace

QByteArray ValuePrinter::start() const
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

QByteArray ValuePrinter::result(const QVector<PictureValues> &results, int number) const
{
    QByteArray text = m_format == Format::Text ? alignmentLine(results.first()) : QByteArray();
    for (int i = 0; i < results.size(); ++i) {
        text += measurement(results[i], number == 0 && i == 0);
    }
    return text;
}

QByteArray ValuePrinter::measurement(const PictureValues &result, bool isFirst) const
{
    switch (m_format) {
    case Format::Json:
        return (isFirst ? "\n  " : ",\n  ") + valuesJson(result).toLines("  ");
    case Format::JsonLines:
        return valuesJson(result).toLine() + "\n";
    case Format::Csv:
        return csvRecords(result);
    case Format::Text:
        break;
    }
    return textLines(result);
}

QByteArray ValuePrinter::end(int count) const
{
    if (m_format != Format::Json) {
        return {};
    }
    return count == 0 ? "]\n" : "\n]\n";
}

} // namespace Drevon::Zalento::Apps
