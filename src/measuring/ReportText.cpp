#include "measuring/ReportText.h"

#include "measuring/Text.h"
#include "measuring/UncertaintyText.h"

#include <QFileInfo>
#include <QStringList>

#include <array>
#include <map>

namespace Drevon::Zalento::Measuring {

namespace {

// Digits of numbers that are told without an uncertainty.
constexpr int digits = 5;
// Of seconds in a film: frames are some hundredths apart.
constexpr int filmDecimals = 3;

const QLatin1String grid("<table width=\"100%\" border=\"1\" cellspacing=\"0\" cellpadding=\"3\" "
                         "style=\"border-collapse: collapse; border-style: solid; "
                         "border-color: #999999; margin-top: 8px\">%1</table>");
const QLatin1String plain("<table cellspacing=\"0\" cellpadding=\"1\" "
                          "style=\"margin-top: 4px\">%1</table>");

QString number(double value)
{
    return QString::number(value, 'g', digits);
}

QString row(const QStringList &cells)
{
    return QStringLiteral("<tr><td>%1</td></tr>").arg(cells.join(QLatin1String("</td><td>")));
}

/** A column's name, and its width in percent of the table's. */
struct Column
{
    QString name;
    int percent;
};

// Where a table goes on with the next page it stands there again.
QString columnNames(const QVector<Column> &columns)
{
    QString html;
    for (const Column &column : columns) {
        html += QStringLiteral("<th align=\"left\" width=\"%1%\">%2</th>")
                    .arg(column.percent)
                    .arg(column.name);
    }
    return QStringLiteral("<thead><tr>%1</tr></thead>").arg(html);
}

// A name beside what it is.
QString namedRow(const QString &name, const QString &text)
{
    return QStringLiteral("<tr><td style=\"color: #666666\">%1&nbsp;&nbsp;</td><td>%2</td></tr>")
        .arg(name.toHtmlEscaped(), text.toHtmlEscaped());
}

QString title(const QString &text)
{
    return QStringLiteral("<h4>%1</h4>").arg(text);
}

QString stateText(Status status)
{
    switch (status) {
    case Status::Measured:
        return Text::tr("measured");
    case Status::NoValue:
        return Text::tr("no value");
    case Status::NotSet:
        return Text::tr("not set");
    case Status::NotMeasured:
        return Text::tr("not measured");
    case Status::Failed:
        break;
    }
    return Text::tr("failed");
}

// Some reasons begin with the state.
QString stateAndReason(const PictureValues &values)
{
    const QString state = stateText(values.status);
    const bool isTold = values.message.startsWith(state);
    const QString text = isTold ? values.message : state + QStringLiteral(": ") + values.message;
    return (values.message.isEmpty() ? state : text).toHtmlEscaped();
}

QString valueName(const Value &value)
{
    const std::map<QString, QString> names{
        {QStringLiteral("crackWidth"), Text::tr("Crack width")},
        {QStringLiteral("length"), Text::tr("Length")},
        {QStringLiteral("waterLevel"), Text::tr("Water level")},
        {QStringLiteral("branchAngle"), Text::tr("Branch angle")},
        {QStringLiteral("bendAngle"), Text::tr("Bend angle")},
        {QStringLiteral("area"), Text::tr("Area")},
        {QStringLiteral("areaShare"), Text::tr("Share of the section")},
        {QStringLiteral("diameterShare"), Text::tr("Share of the diameter")},
    };
    const auto found = names.find(value.name);
    return found == names.end() ? value.name : found->second;
}

// decisionText() for people.
QString whereText(Decision decision)
{
    switch (decision) {
    case Decision::Below:
        return Text::tr("below");
    case Decision::Above:
        return Text::tr("above");
    case Decision::Undecided:
        break;
    }
    return Text::tr("cannot be decided at 95 %");
}

QString limitText(const ReportMeasurement &measurement, const Value &value)
{
    if (!value.uncertainty || !value.uncertainty->decision || !measurement.session) {
        return {};
    }
    return QStringLiteral("%1: %2").arg(measurement.session->limit,
                                        whereText(*value.uncertainty->decision));
}

QString sourceName(UncertaintySource source)
{
    switch (source) {
    case UncertaintySource::Clicks:
        return Text::tr("clicks");
    case UncertaintySource::Pixels:
        return Text::tr("pixels");
    case UncertaintySource::Alignment:
        return Text::tr("alignment");
    case UncertaintySource::Diameter:
        return Text::tr("diameter");
    case UncertaintySource::FieldOfView:
        return Text::tr("field of view");
    case UncertaintySource::Laser:
        return Text::tr("laser");
    case UncertaintySource::Scale:
        return Text::tr("scale");
    case UncertaintySource::Setting:
        break;
    }
    return Text::tr("set by eye");
}

// What makes the value uncertain, the largest part first.
QString budgetText(const Value &value)
{
    constexpr double percent = 100.0;
    if (!value.uncertainty) {
        return Text::tr("the uncertainty has no number");
    }
    QStringList parts;
    for (const BudgetRow &source : value.uncertainty->budget) {
        const int share = qRound(source.share * percent);
        if (share > 0) {
            parts += QStringLiteral("%1 %2 %").arg(sourceName(source.source)).arg(share);
        }
    }
    return parts.join(QStringLiteral(", "));
}

QString repeatsHtml(const PictureValues &measured)
{
    QString html;
    for (const Value &value : measured.values) {
        if (value.repeats) {
            html += QStringLiteral("<p>%1</p>")
                        .arg(Text::tr("%1, %2 results: mean %3 %5, standard deviation %4 %5")
                                 .arg(valueName(value))
                                 .arg(value.repeats->count)
                                 .arg(number(value.repeats->mean),
                                      number(value.repeats->standardDeviation), value.unit)
                                 .toHtmlEscaped());
        }
    }
    return html;
}

// For people.
QString fieldName(AlignmentField field)
{
    const std::array<QString, alignmentFieldCount> names{
        Text::tr("Offset"),        Text::tr("Camera height, %"), Text::tr("Far end, left"),
        Text::tr("Far end, down"), Text::tr("Mouth, %"),         Text::tr("Field of view, °")};
    return names[static_cast<std::size_t>(field)];
}

QString fieldText(const AlignmentSummary &alignment, std::size_t index)
{
    constexpr int decimals = 2;
    const QString value = QString::number(alignment.alignment.numbers()[index], 'f', decimals);
    const auto field = static_cast<AlignmentField>(index);
    if (!alignment.fit || !alignment.fit->fitted.contains(field)) {
        return value;
    }
    const double expanded = coverageFactor * alignment.fit->standardUncertainty(field);
    return QStringLiteral("%1 ± %2").arg(value, QString::number(expanded, 'f', decimals));
}

QString alignmentHtml(const PictureValues &measured)
{
    const std::optional<AlignmentSummary> &alignment = measured.alignment;
    const bool hasModel = measured.kind && infoOf(*measured.kind).has(Uses::Model);
    if (!alignment || !hasModel) {
        return {};
    }
    QString rows;
    for (std::size_t i = 0; i < alignmentFieldCount; ++i) {
        rows += namedRow(fieldName(static_cast<AlignmentField>(i)), fieldText(*alignment, i));
    }
    return title(Text::tr("Alignment")) +
           QStringLiteral("<p>%1</p>").arg(fitText(*alignment, fieldName).toHtmlEscaped()) +
           QString(plain).arg(rows);
}

// Where in the pipe, and in which film.
QString placeRows(const PictureValues &measured)
{
    QString rows;
    if (measured.counterM) {
        rows += namedRow(Text::tr("Counter"), number(*measured.counterM) + QStringLiteral(" m"));
    }
    if (const std::optional<FilmFrame> &film = measured.film) {
        rows += namedRow(Text::tr("Film"), Text::tr("%1, %2 s")
                                               .arg(QFileInfo(film->path).fileName())
                                               .arg(film->seconds, 0, 'f', filmDecimals));
    }
    return rows;
}

QString inputsHtml(const PictureValues &measured)
{
    const ValueInputs &inputs = measured.inputs;
    QString rows = placeRows(measured);
    if (inputs.diameterMM) {
        rows += namedRow(Text::tr("Diameter"), number(*inputs.diameterMM) + QStringLiteral(" mm"));
    }
    if (inputs.mmPerPixel) {
        rows +=
            namedRow(Text::tr("Scale"), Text::tr("%1 mm a pixel").arg(number(*inputs.mmPerPixel)));
    }
    if (measured.lens) {
        rows += namedRow(Text::tr("Lens taken out"), measured.lens->name);
    }
    return rows.isEmpty() ? QString() : QString(plain).arg(rows);
}

QString recordHtml(const ReportRecord &record)
{
    QString rows;
    for (const RecordField &field : record) {
        rows += namedRow(field.name, field.text);
    }
    return rows.isEmpty() ? QString() : title(Text::tr("Record")) + QString(plain).arg(rows);
}

// Where all pictures are; empty when they are in several folders.
QString commonFolder(const QVector<ReportPicture> &pictures)
{
    const QString folder = QFileInfo(pictures.value(0).path).path();
    for (const ReportPicture &picture : pictures) {
        if (QFileInfo(picture.path).path() != folder) {
            return {};
        }
    }
    return folder;
}

QString countsText(const QVector<ReportPicture> &pictures)
{
    std::map<Status, int> counts;
    for (const ReportPicture &picture : pictures) {
        for (const ReportMeasurement &measurement : picture.measurements) {
            ++counts[measurement.values.status];
        }
    }
    QStringList texts;
    for (const auto &[status, count] : counts) {
        texts += QStringLiteral("%1 %2").arg(count).arg(stateText(status));
    }
    return Text::tr("Pictures: %1; measurements: %2")
        .arg(pictures.size())
        .arg(texts.join(QStringLiteral(", ")));
}

// "crack A (Crack width)"; the kind alone of one without a name, or with that of its kind.
QString measuredHtml(const PictureValues &values)
{
    const QString kind = values.kind ? translated(infoOf(*values.kind).title) : QString();
    const bool isNamed = !values.measurement.isEmpty() && values.measurement != kind;
    const QString text = isNamed ? QStringLiteral("%1 (%2)").arg(values.measurement, kind) : kind;
    return text.toHtmlEscaped();
}

QString overviewRow(const QString &picture, int number, const ReportMeasurement &measurement)
{
    QStringList values;
    QStringList limits;
    for (const Value &value : measurement.values.values) {
        values += QStringLiteral("%1 %2")
                      .arg(valueName(value), inTableUnit(value).fullText())
                      .toHtmlEscaped();
        limits += limitText(measurement, value).toHtmlEscaped();
    }
    const QLatin1String newLine("<br>");
    return row({QString::number(number), picture.toHtmlEscaped(), measuredHtml(measurement.values),
                values.join(newLine), limits.join(newLine), stateAndReason(measurement.values)});
}

QString overviewTable(const Report &report, bool isFolderTold)
{
    QString rows = columnNames({{Text::tr("No."), 5},
                                {Text::tr("Picture"), 18},
                                {Text::tr("Measured"), 17},
                                {Text::tr("Value, uncertainty (k = 2)"), 27},
                                {Text::tr("Limit"), 15},
                                {Text::tr("State"), 18}});
    int number = 0;
    for (const ReportPicture &picture : report.pictures) {
        ++number;
        const QString name = isFolderTold ? QFileInfo(picture.path).fileName() : picture.path;
        for (const ReportMeasurement &measurement : picture.measurements) {
            rows += overviewRow(name, number, measurement);
        }
    }
    return QString(grid).arg(rows);
}

QString measurementHtml(const ReportMeasurement &measurement)
{
    const PictureValues &measured = measurement.values;
    if (measured.values.isEmpty()) {
        return QStringLiteral("<p style=\"margin-top: 8px\"><b>%1</b></p>")
            .arg(stateAndReason(measured));
    }
    QString rows = columnNames({{Text::tr("Value"), 20},
                                {Text::tr("with its uncertainty (k = 2)"), 30},
                                {Text::tr("Limit"), 20},
                                {Text::tr("uncertain by"), 30}});
    for (const Value &value : measured.values) {
        rows += row({valueName(value).toHtmlEscaped(),
                     QStringLiteral("<b>%1</b>").arg(inTableUnit(value).fullText().toHtmlEscaped()),
                     limitText(measurement, value).toHtmlEscaped(), budgetText(value)});
    }
    return QString(grid).arg(rows) + repeatsHtml(measured);
}

} // namespace

QString overviewHtml(const Report &report)
{
    const QString folder = commonFolder(report.pictures);
    QString html = QStringLiteral("<h2>%1</h2>").arg(Text::tr("Inspection report"));
    html += recordHtml(report.record);
    html += title(Text::tr("Overview"));
    html += QStringLiteral("<p>%1</p>").arg(countsText(report.pictures));
    if (!folder.isEmpty() && folder != QLatin1String(".")) {
        html += QStringLiteral("<p>%1</p>").arg(Text::tr("Folder: %1").arg(folder).toHtmlEscaped());
    }
    return html + overviewTable(report, !folder.isEmpty());
}

QString headingHtml(const ReportPicture &picture, int number)
{
    QStringList facts;
    for (const ReportMeasurement &measurement : picture.measurements) {
        facts += measuredHtml(measurement.values);
    }
    const QSize size = picture.measurements.first().values.identity.size;
    if (!size.isEmpty()) {
        facts += Text::tr("%1 × %2 pixels").arg(size.width()).arg(size.height());
    }
    facts += picture.path.toHtmlEscaped();
    facts.removeAll(QString());
    return QStringLiteral("<h3>%1 · %2</h3><p>%3</p>")
        .arg(QString::number(number), QFileInfo(picture.path).fileName().toHtmlEscaped(),
             facts.join(QStringLiteral(" · ")));
}

QString valuesHtml(const ReportPicture &picture)
{
    QString html;
    for (const ReportMeasurement &measurement : picture.measurements) {
        if (picture.measurements.size() > 1) {
            html += title(measuredHtml(measurement.values));
        }
        html += measurementHtml(measurement);
    }
    return html;
}

QString detailsHtml(const ReportPicture &picture, const ReportRecord &record)
{
    // All measurements on a picture share them.
    const PictureValues &values = picture.measurements.first().values;
    return inputsHtml(values) + alignmentHtml(values) + recordHtml(record);
}

QString noteHtml(const QString &text)
{
    return QStringLiteral("<p style=\"color: #a02000; margin-top: 8px\">%1</p>")
        .arg(text.toHtmlEscaped());
}

} // namespace Drevon::Zalento::Measuring
