#include "measuring/ValueTable.h"

#include "measuring/Count.h"
#include "measuring/Editing.h"
#include "measuring/Measurands.h"
#include "measuring/Text.h"

#include <QJsonArray>
#include <QLocale>

namespace Drevon::Zalento::Measuring {

namespace {

QString kindName(const PictureValues &picture)
{
    return picture.kind ? infoOf(*picture.kind).nameText() : QString();
}

QByteArray budgetJson(const QVector<BudgetRow> &budget)
{
    QByteArrayList rows;
    for (const BudgetRow &row : budget) {
        OrderedJson json;
        json.add(QStringLiteral("source"), uncertaintySourceName(row.source));
        json.add(QStringLiteral("standardUncertainty"), row.standardUncertainty);
        json.add(QStringLiteral("share"), row.share);
        rows += json.toLine();
    }
    return "[" + rows.join(", ") + "]";
}

void addUncertainty(OrderedJson &json, const Uncertainty &uncertainty)
{
    json.add(QStringLiteral("standardUncertainty"), uncertainty.standard);
    json.add(QStringLiteral("expandedUncertainty"), uncertainty.expanded());
    json.add(QStringLiteral("coverageFactor"), coverageFactor);
    json.add(QStringLiteral("method"), uncertaintyMethodName(uncertainty.method));
    if (uncertainty.interval) {
        json.add(QStringLiteral("interval"),
                 QJsonArray{uncertainty.interval->first, uncertainty.interval->second});
    }
    json.add(QStringLiteral("budget"), budgetJson(uncertainty.budget));
    if (uncertainty.decision) {
        json.add(QStringLiteral("decision"), decisionText(*uncertainty.decision));
    }
}

QByteArray repeatsJson(const RepeatStatistics &repeats)
{
    OrderedJson json;
    json.add(QStringLiteral("count"), repeats.count);
    json.add(QStringLiteral("mean"), repeats.mean);
    json.add(QStringLiteral("standardDeviation"), repeats.standardDeviation);
    json.add(QStringLiteral("standardDeviationOfMean"), repeats.standardDeviationOfMean);
    return json.toLine();
}

void addInputs(OrderedJson &json, const ValueInputs &inputs)
{
    const auto add = [&json](const char *name, const std::optional<double> &number) {
        if (number) {
            json.add(QLatin1String(name), *number);
        }
    };
    add("diameterMM", inputs.diameterMM);
    add("fovYDEG", inputs.fovYDEG);
    add("mmPerPixel", inputs.mmPerPixel);
}

QByteArray valueJson(const Value &value, const ValueInputs &inputs)
{
    OrderedJson json;
    json.add(QStringLiteral("name"), value.name);
    json.add(QStringLiteral("number"), value.number);
    json.add(QStringLiteral("unit"), value.unit);
    json.add(QStringLiteral("text"), value.text);
    if (value.uncertainty) {
        json.add(QStringLiteral("textWithUncertainty"), value.fullText());
        addUncertainty(json, *value.uncertainty);
    }
    if (value.repeats) {
        json.add(QStringLiteral("repeats"), repeatsJson(*value.repeats));
    }
    addInputs(json, inputs);
    return json.toLine();
}

QByteArray valueList(const PictureValues &picture)
{
    QByteArrayList texts;
    for (const Value &value : picture.values) {
        texts += valueJson(value, picture.inputs);
    }
    return "[" + texts.join(", ") + "]";
}

QString optionalText(const std::optional<double> &number)
{
    return number ? numberText(*number) : QString();
}

// The columns behind the message.
QStringList uncertaintyFields(const Value &value, const ValueInputs &inputs)
{
    QStringList fields;
    if (const std::optional<Uncertainty> &known = value.uncertainty) {
        fields = QStringList{numberText(known->standard), numberText(known->expanded()),
                             numberText(coverageFactor), uncertaintyMethodName(known->method)};
        fields += known->interval ? QStringList{numberText(known->interval->first),
                                                numberText(known->interval->second)}
                                  : QStringList{{}, {}};
        fields += value.fullText();
        fields += known->decision ? decisionText(*known->decision) : QString();
    } else {
        fields = QStringList{{}, {}, {}, {}, {}, {}, {}, {}};
    }
    return fields + QStringList{optionalText(inputs.diameterMM), optionalText(inputs.fovYDEG),
                                optionalText(inputs.mmPerPixel)};
}

// The last columns: which measurement it is, and where the picture was taken.
QStringList placeFields(const PictureValues &picture)
{
    const std::optional<FilmFrame> &film = picture.film;
    return {picture.measurement, optionalText(picture.counterM), film ? film->path : QString(),
            film ? numberText(film->seconds) : QString()};
}

QByteArray filmJson(const FilmFrame &film)
{
    OrderedJson json;
    json.add(QStringLiteral("path"), film.path);
    json.add(QStringLiteral("frame"), film.number);
    json.add(QStringLiteral("seconds"), film.seconds);
    return json.toLine();
}

Status statusOf(MeasureState state)
{
    switch (state) {
    case MeasureState::Measured:
        return Status::Measured;
    case MeasureState::NotSet:
        return Status::NotSet;
    default:
        return Status::NoValue;
    }
}

ValueInputs inputsOf(const Session &session)
{
    const KindInfo &info = infoOf(session.kind);
    ValueInputs inputs;
    if (info.has(Uses::Model)) {
        inputs.diameterMM = session.diameterMM;
        inputs.fovYDEG = session.fovYDEG;
    }
    if (info.has(Uses::Scale)) {
        inputs.mmPerPixel = scaleOf(session);
    }
    return inputs;
}

QByteArray namesJson(const QVector<AlignmentField> &fields)
{
    QJsonArray names;
    for (const AlignmentField field : fields) {
        names.append(alignmentFieldName(field));
    }
    return jsonText(names);
}

QByteArray uncertaintiesJson(const std::optional<AlignmentFit> &fit)
{
    OrderedJson json;
    for (const AlignmentField field : fit ? fit->fitted : QVector<AlignmentField>()) {
        json.add(alignmentFieldName(field), fit->standardUncertainty(field));
    }
    return json.toLine();
}

QByteArray alignmentJson(const AlignmentSummary &summary)
{
    const std::optional<AlignmentFit> &fit = summary.fit;
    const Alignment &alignment = summary.alignment;
    OrderedJson json;
    json.add(QStringLiteral("fitted"), namesJson(fit ? fit->fitted : QVector<AlignmentField>()));
    json.add(QStringLiteral("rings"), summary.rings);
    json.add(QStringLiteral("lines"), summary.lines);
    json.add(QStringLiteral("rmsPX"), fit ? QJsonValue(fit->rmsPX) : QJsonValue());
    json.add(QStringLiteral("largestPX"), fit ? QJsonValue(fit->largestPX) : QJsonValue());
    json.add(QStringLiteral("offset"), alignment.offset);
    json.add(QStringLiteral("cameraHeightPercent"), alignment.cameraHeightPercent);
    json.add(QStringLiteral("rearCircle"),
             QJsonArray{alignment.rearCircleX, alignment.rearCircleY});
    json.add(QStringLiteral("mouthPercent"), alignment.mouthPercent);
    json.add(QStringLiteral("fovYDEG"), alignment.fovYDEG);
    json.add(QStringLiteral("standardUncertainties"), uncertaintiesJson(fit));
    json.add(QStringLiteral("undetermined"),
             namesJson(fit ? fit->undetermined : QVector<AlignmentField>()));
    return json.toLine();
}

QByteArray snapJson(const SnapSummary &snap)
{
    const bool isFound = snap.reason.isEmpty();
    OrderedJson json;
    json.add(QStringLiteral("state"),
             isFound ? QStringLiteral("found") : QStringLiteral("refused"));
    json.add(QStringLiteral("edgePoints"), snap.edgePoints);
    json.add(QStringLiteral("rmsPX"), isFound ? QJsonValue(snap.rmsPX) : QJsonValue());
    json.add(QStringLiteral("reason"), snap.reason);
    return json.toLine();
}

QByteArray lensJson(const LensSummary &lens)
{
    OrderedJson json;
    json.add(QStringLiteral("name"), lens.name);
    if (lens.k1) {
        json.add(QStringLiteral("k1"), *lens.k1);
        json.add(QStringLiteral("standardUncertainty"), lens.standardUncertainty);
    }
    return json.toLine();
}

// What the alignment is fitted to.
QString featuresText(const AlignmentSummary &summary)
{
    QStringList features;
    if (summary.rings > 0) {
        features +=
            summary.rings == 1 ? Text::tr("1 joint") : Text::tr("%1 joints").arg(summary.rings);
    }
    if (summary.lines > 0) {
        features +=
            summary.lines == 1 ? Text::tr("1 line") : Text::tr("%1 lines").arg(summary.lines);
    }
    return features.join(Text::tr(" and "));
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
    case Status::NotSet:
        return QStringLiteral("not set");
    case Status::NotMeasured:
        return QStringLiteral("not measured");
    case Status::Failed:
        break;
    }
    return QStringLiteral("failed");
}

QString PictureValues::place() const
{
    return measurement.isEmpty() ? picture : Problem{picture, measurement}.text();
}

AlignmentSummary alignmentSummary(const Session &session, const std::optional<AlignmentFit> &fit)
{
    return {alignmentOf(session), countOf(session.rings), countOf(session.lines), fit};
}

PictureValues pictureValues(const QString &picture, const Session &session,
                            const std::optional<AlignmentFit> &fit, UncertaintyEffort effort)
{
    const Measurement measurement = measureWithUncertainty(session, fit, effort);
    PictureValues result;
    result.picture = picture;
    result.identity = session.picture;
    result.measurement = session.name;
    result.kind = session.kind;
    result.status = statusOf(measurement.state);
    result.values = measurement.values;
    result.inputs = inputsOf(session);
    result.film = session.film;
    result.counterM = session.counterM;
    result.alignment = alignmentSummary(session, fit);
    if (session.lens) {
        result.lens = LensSummary{session.lens->name, {}, 0.0};
    }
    result.message = measurement.note;
    return result;
}

QVector<PictureValues> allPictureValues(const QString &picture, const Session &session,
                                        const std::optional<AlignmentFit> &fit,
                                        UncertaintyEffort effort)
{
    QVector<PictureValues> all;
    Session measured = session;
    forEachMeasurand(measured, [&](const Session &atHand) {
        all += pictureValues(picture, atHand, fit, effort);
    });
    return all;
}

QString fitText(const AlignmentSummary &summary, QString (*nameOf)(AlignmentField))
{
    if (!summary.fit) {
        return Text::tr("not fitted");
    }
    QStringList left;
    for (const AlignmentField field : summary.fit->undetermined) {
        left += nameOf(field);
    }
    const QString text = Text::tr("fitted to %1, rms %2 px, largest %3 px")
                             .arg(featuresText(summary))
                             .arg(summary.fit->rmsPX, 0, 'f', 2)
                             .arg(summary.fit->largestPX, 0, 'f', 2);
    return left.isEmpty()
               ? text
               : Text::tr("%1; not determined: %2").arg(text, left.join(QStringLiteral("; ")));
}

QByteArray csvRecord(const QStringList &fields)
{
    QStringList quoted;
    for (const QString &field : fields) {
        quoted += csvField(field);
    }
    return quoted.join(QLatin1Char(',')).toUtf8() + "\r\n";
}

QByteArray csvHeader()
{
    return "picture,kind,status,name,number,unit,text,message,standardUncertainty,"
           "expandedUncertainty,coverageFactor,method,intervalLow,intervalHigh,"
           "textWithUncertainty,decision,diameterMM,fovYDEG,mmPerPixel,measurement,counterM,film,"
           "filmSeconds\r\n";
}

QByteArray csvRecords(const PictureValues &picture)
{
    const QStringList common{picture.picture, kindName(picture), statusName(picture.status)};
    if (picture.values.isEmpty()) {
        return csvRecord(common + QStringList{{}, {}, {}, {}, picture.message} +
                         uncertaintyFields(Value(), picture.inputs) + placeFields(picture));
    }
    QByteArray records;
    for (const Value &value : picture.values) {
        records += csvRecord(common +
                             QStringList{value.name, numberText(value.number), value.unit,
                                         value.text, picture.message} +
                             uncertaintyFields(value, picture.inputs) + placeFields(picture));
    }
    return records;
}

OrderedJson valuesJson(const PictureValues &picture)
{
    OrderedJson json;
    json.add(QStringLiteral("picture"), picture.picture);
    if (!picture.identity.size.isEmpty()) {
        json.add(QStringLiteral("size"),
                 QJsonArray{picture.identity.size.width(), picture.identity.size.height()});
        json.add(QStringLiteral("sha256"), QString::fromLatin1(picture.identity.sha256));
    }
    if (picture.film) {
        json.add(QStringLiteral("film"), filmJson(*picture.film));
    }
    if (picture.counterM) {
        json.add(QStringLiteral("counterM"), *picture.counterM);
    }
    if (!picture.measurement.isEmpty()) {
        json.add(QStringLiteral("measurement"), picture.measurement);
    }
    json.add(QStringLiteral("kind"), kindName(picture));
    json.add(QStringLiteral("status"), statusName(picture.status));
    json.add(QStringLiteral("values"), valueList(picture));
    if (picture.alignment) {
        json.add(QStringLiteral("alignment"), alignmentJson(*picture.alignment));
    }
    if (picture.lens) {
        json.add(QStringLiteral("lens"), lensJson(*picture.lens));
    }
    if (picture.snap) {
        json.add(QStringLiteral("snap"), snapJson(*picture.snap));
    }
    json.add(QStringLiteral("message"), picture.message);
    json.add(QStringLiteral("written"), QJsonArray::fromStringList(picture.written));
    return json;
}

QByteArray jsonDocument(const QVector<PictureValues> &measurements)
{
    QVector<QByteArray> objects;
    for (const PictureValues &measurement : measurements) {
        objects += valuesJson(measurement).toLines("  ");
    }
    return jsonLines(objects, "") + "\n";
}

QString numberText(double number)
{
    return QString::number(number, 'g', QLocale::FloatingPointShortest);
}

} // namespace Drevon::Zalento::Measuring
