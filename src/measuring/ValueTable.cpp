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
