#include "measuring/ValueTable.h"

#include <QJsonArray>
#include <QLocale>

namespace Drevon::Zalento::Measuring {

namespace {

QString kindName(const PictureValues &picture)
{
    return picture.kind ? infoOf(*picture.kind).nameText() : QString();
}

QByteArray valueJson(const Value &value)
{
    OrderedJson json;
    json.add(QStringLiteral("name"), value.name);
    json.add(QStringLiteral("number"), value.number);
    json.add(QStringLiteral("unit"), value.unit);
    json.add(QStringLiteral("text"), value.text);
    return json.toLine();
}

QByteArray valueList(const QVector<Value> &values)
{
    QByteArrayList texts;
    for (const Value &value : values) {
        texts += valueJson(value);
    }
    return "[" + texts.join(", ") + "]";
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

QString counted(int count, const char *one, const char *many)
{
    return QStringLiteral("%1 %2").arg(count).arg(QLatin1String(count == 1 ? one : many));
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

void setMeasurement(PictureValues &picture, const Measurement &measurement)
{
    switch (measurement.state) {
    case MeasureState::Measured:
        picture.status = Status::Measured;
        break;
    case MeasureState::NotSet:
        picture.status = Status::NotSet;
        break;
    case MeasureState::NeedsPoints:
    case MeasureState::NoScale:
        picture.status = Status::NoValue;
        break;
    }
    picture.values = measurement.values;
    picture.message = measurement.note;
}

AlignmentSummary alignmentSummary(const Session &session, const std::optional<AlignmentFit> &fit)
{
    return {alignmentOf(session), session.rings.size(), session.lines.size(), fit};
}

QString fitText(const AlignmentSummary &summary)
{
    if (!summary.fit) {
        return QStringLiteral("not fitted");
    }
    QStringList features;
    if (summary.rings > 0) {
        features += counted(summary.rings, "joint", "joints");
    }
    if (summary.lines > 0) {
        features += counted(summary.lines, "line", "lines");
    }
    QStringList left;
    for (const AlignmentField field : summary.fit->undetermined) {
        left += alignmentFieldName(field);
    }
    const QString text = QStringLiteral("fitted to %1, rms %2 px, largest %3 px")
                             .arg(features.join(QStringLiteral(" and ")))
                             .arg(summary.fit->rmsPX, 0, 'f', 2)
                             .arg(summary.fit->largestPX, 0, 'f', 2);
    return left.isEmpty()
               ? text
               : text + QStringLiteral("; not determined: ") + left.join(QStringLiteral(", "));
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
    return "picture,kind,status,name,number,unit,text,message\r\n";
}

QByteArray csvRecords(const PictureValues &picture)
{
    const QStringList common{picture.picture, kindName(picture), statusName(picture.status)};
    if (picture.values.isEmpty()) {
        return csvRecord(common + QStringList{{}, {}, {}, {}, picture.message});
    }
    QByteArray records;
    for (const Value &value : picture.values) {
        records += csvRecord(common + QStringList{value.name, numberText(value.number), value.unit,
                                                  value.text, picture.message});
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
    json.add(QStringLiteral("kind"), kindName(picture));
    json.add(QStringLiteral("status"), statusName(picture.status));
    json.add(QStringLiteral("values"), valueList(picture.values));
    if (picture.alignment) {
        json.add(QStringLiteral("alignment"), alignmentJson(*picture.alignment));
    }
    json.add(QStringLiteral("message"), picture.message);
    json.add(QStringLiteral("written"), QJsonArray::fromStringList(picture.written));
    return json;
}

QByteArray jsonDocument(const QVector<PictureValues> &pictures)
{
    QVector<QByteArray> objects;
    for (const PictureValues &picture : pictures) {
        objects += valuesJson(picture).toLines("  ");
    }
    return jsonLines(objects, "") + "\n";
}

QString numberText(double number)
{
    return QString::number(number, 'g', QLocale::FloatingPointShortest);
}

} // namespace Drevon::Zalento::Measuring
