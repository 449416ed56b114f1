#include "measuring/SessionJson.h"

#include "measuring/Count.h"
#include "measuring/Measurands.h"
#include "measuring/OrderedJson.h"
#include "measuring/Text.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonParseError>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

namespace Drevon::Zalento::Measuring {

namespace {

const char *const schemaName = "zalento-session";

QString typeName(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Null:
        return QStringLiteral("null");
    case QJsonValue::Bool:
        return Text::tr("true or false");
    case QJsonValue::Double:
        return Text::tr("the number %1").arg(value.toDouble());
    case QJsonValue::String:
        return Text::tr("the text \"%1\"").arg(value.toString());
    case QJsonValue::Array:
        return Text::tr("a list");
    case QJsonValue::Object:
        return Text::tr("an object");
    default:
        return Text::tr("nothing");
    }
}

/** Takes fields out of an object; what nobody took is unknown. Keeps the first problem. */
class FieldReader
{
public:
    FieldReader(const QJsonObject &object, const QString &prefix, Outcome &problem)
        : m_rest(object)
        , m_prefix(prefix)
        , m_problem(problem)
    {}

    const QJsonObject &rest() const { return m_rest; }

    void read(const char *name, double &number)
    {
        const QJsonValue value = take(name);
        if (expect(name, value, value.isDouble(), QT_TRANSLATE_NOOP("Text", "a number"))) {
            number = value.toDouble();
        }
    }

    void read(const char *name, std::optional<double> &number)
    {
        double given = std::numeric_limits<double>::quiet_NaN();
        read(name, given);
        if (!std::isnan(given)) {
            number = given;
        }
    }

    void read(const char *name, int &number)
    {
        const QJsonValue value = take(name);
        // toInt() gives its argument back for everything but a whole number.
        const bool isInt = value.toInt(0) == value.toInt(1);
        if (expect(name, value, isInt, QT_TRANSLATE_NOOP("Text", "a whole number"))) {
            number = value.toInt();
        }
    }

    void read(const char *name, bool &flag)
    {
        const QJsonValue value = take(name);
        if (expect(name, value, value.isBool(), QT_TRANSLATE_NOOP("Text", "true or false"))) {
            flag = value.toBool();
        }
    }

    void read(const char *name, QString &text)
    {
        const QJsonValue value = take(name);
        if (expect(name, value, value.isString(), QT_TRANSLATE_NOOP("Text", "a text"))) {
            text = value.toString();
        }
    }

    template <typename Value, typename Lookup>
    void readChoice(const char *name, Value &choice, Lookup lookup, const char *expected)
    {
        const QJsonValue value = take(name);
        const std::optional<Value> found = lookup(value.toString());
        if (expect(name, value, found.has_value(), expected)) {
            choice = *found;
        }
    }

    /** The finite numbers of a list of exactly @p count; nothing when the field is missing. */
    QVector<double> readNumbers(const char *name, int count, const char *expected)
    {
        const QJsonValue value = take(name);
        const QJsonArray list = value.toArray();
        const bool areNumbers =
            value.isArray() && list.size() == count &&
            std::all_of(list.begin(), list.end(), [](const QJsonValue &v) { return v.isDouble(); });
        QVector<double> numbers;
        if (expect(name, value, areNumbers, expected)) {
            for (const QJsonValue &number : list) {
                numbers += number.toDouble();
            }
        }
        return numbers;
    }

    /** The numbers of a list, however many; nothing when the field is missing. */
    QVector<double> readNumbers(const char *name)
    {
        const int count = countOf(m_rest.value(QLatin1String(name)).toArray());
        return readNumbers(name, count, QT_TRANSLATE_NOOP("Text", "a list of numbers"));
    }

    /** True when the field is there and is what was expected. */
    bool expect(const char *name, const QJsonValue &value, bool isExpected, const char *expected)
    {
        if (value.isUndefined()) {
            return false;
        }
        if (!isExpected && !m_problem) {
            m_problem =
                Problem{placeOf(name),
                        Text::tr("expected %1, found %2").arg(Text::tr(expected), typeName(value))};
        }
        return isExpected;
    }

    /** The field with the place of its object, for problems. */
    QString placeOf(const char *name) const { return m_prefix + QLatin1String(name); }

    QJsonValue take(const char *name) { return m_rest.take(QLatin1String(name)); }

private:
    QJsonObject m_rest;
    QString m_prefix;
    Outcome &m_problem;
};

// Picture

// What is not known is left out.
QByteArray pictureToJson(const PictureIdentity &picture)
{
    OrderedJson json;
    if (!picture.path.isEmpty()) {
        json.add(QStringLiteral("path"), picture.path);
    }
    if (!picture.size.isEmpty()) {
        json.add(QStringLiteral("size"), QJsonArray{picture.size.width(), picture.size.height()});
    }
    if (!picture.sha256.isEmpty()) {
        json.add(QStringLiteral("sha256"), QString::fromLatin1(picture.sha256));
    }
    json.addAll(picture.unknownFields);
    return json.toLine();
}

std::optional<QByteArray> sha256Of(const QString &text)
{
    static const QRegularExpression digits(QStringLiteral("\\A[0-9a-f]{64}\\z"));
    if (!digits.match(text).hasMatch()) {
        return std::nullopt;
    }
    return text.toLatin1();
}

std::optional<QSize> sizeOf(const QVector<double> &numbers)
{
    for (const double number : numbers) {
        if (number != std::floor(number) || number < 1 ||
            number > std::numeric_limits<int>::max()) {
            return std::nullopt;
        }
    }
    return QSize(static_cast<int>(numbers[0]), static_cast<int>(numbers[1]));
}

void readSize(FieldReader &reader, const QJsonObject &object, QSize &size)
{
    const QJsonValue given = object.value(QLatin1String("size"));
    const char *const expected =
        QT_TRANSLATE_NOOP("Text", "a list of width and height in whole pixels");
    const QVector<double> numbers = reader.readNumbers("size", 2, expected);
    if (!numbers.isEmpty()) {
        const std::optional<QSize> whole = sizeOf(numbers);
        if (reader.expect("size", given, whole.has_value(), expected)) {
            size = *whole;
        }
    }
}

PictureIdentity pictureFromJson(const QJsonObject &object, Outcome &problem)
{
    PictureIdentity picture;
    FieldReader reader(object, QStringLiteral("picture."), problem);
    reader.read("path", picture.path);
    readSize(reader, object, picture.size);
    reader.readChoice("sha256", picture.sha256, sha256Of, "64 lower-case hexadecimal digits");
    picture.unknownFields = reader.rest();
    return picture;
}

// Lens

QJsonArray arrayOf(const double *begin, const double *end)
{
    QJsonArray array;
    std::copy(begin, end, std::back_inserter(array));
    return array;
}

Lens lensFromObject(const QJsonObject &object, Outcome &problem)
{
    Lens lens;
    FieldReader fields(object, QStringLiteral("lens."), problem);
    fields.read("name", lens.name);
    readSize(fields, object, lens.size);
    const QVector<double> matrix =
        fields.readNumbers("cameraMatrix", static_cast<int>(lens.cameraMatrix.size()),
                           QT_TRANSLATE_NOOP("Text", "a list of 9 numbers, row by row"));
    std::copy(matrix.begin(), matrix.end(), lens.cameraMatrix.begin());
    lens.distortion = fields.readNumbers("distortion");
    fields.readChoice("view", lens.view, lensViewNamed,
                      QT_TRANSLATE_NOOP("Text", "\"square\" or \"all\""));
    fields.read("focalLengthSDPX", lens.focalLengthSDPX);
    lens.unknownFields = fields.rest();
    return lens;
}

// The field of view is the lens's where the file names none.
void readLens(FieldReader &reader, Session &session, Outcome &problem)
{
    const QJsonValue value = reader.take("lens");
    if (!reader.expect("lens", value, value.isObject(), QT_TRANSLATE_NOOP("Text", "an object"))) {
        return;
    }
    session.lens = lensFromObject(value.toObject(), problem);
    if (const Result<LensMapping> mapping = LensMapping::of(*session.lens)) {
        session.fovYDEG = mapping->fovYDEG();
    }
}

// Film

QByteArray filmToJson(const FilmFrame &film)
{
    OrderedJson json;
    json.add(QStringLiteral("path"), film.path);
    json.add(QStringLiteral("frame"), film.number);
    json.add(QStringLiteral("seconds"), film.seconds);
    json.addAll(film.unknownFields);
    return json.toLine();
}

void readFilm(FieldReader &reader, Session &session, Outcome &problem)
{
    reader.read("counterM", session.counterM);
    const QJsonValue value = reader.take("film");
    if (!reader.expect("film", value, value.isObject(), QT_TRANSLATE_NOOP("Text", "an object"))) {
        return;
    }
    FieldReader fields(value.toObject(), QStringLiteral("film."), problem);
    FilmFrame film;
    fields.read("path", film.path);
    fields.read("frame", film.number);
    fields.read("seconds", film.seconds);
    film.unknownFields = fields.rest();
    session.film = film;
}

void addFilm(OrderedJson &json, const Session &session)
{
    if (session.film) {
        json.add(QStringLiteral("film"), filmToJson(*session.film));
    }
    if (session.counterM) {
        json.add(QStringLiteral("counterM"), *session.counterM);
    }
}

// Points

QByteArray pointToJson(const SessionPoint &point)
{
    OrderedJson json;
    json.add(QStringLiteral("pixel"), QJsonArray{point.pixel.x(), point.pixel.y()});
    if (point.position) {
        const Vec3 &position = *point.position;
        json.add(QStringLiteral("position"), QJsonArray{position.x, position.y, position.z});
    }
    json.addAll(point.unknownFields);
    return json.toLine();
}

SessionPoint pointFromJson(const QJsonObject &object, const QString &prefix, Outcome &problem)
{
    SessionPoint point;
    FieldReader reader(object, prefix + QLatin1Char('.'), problem);
    const QVector<double> pixel =
        reader.readNumbers("pixel", 2, QT_TRANSLATE_NOOP("Text", "a list of x and y in pixels"));
    if (!pixel.isEmpty()) {
        point.pixel = QPointF(pixel[0], pixel[1]);
    }
    const QVector<double> position = reader.readNumbers(
        "position", 3, QT_TRANSLATE_NOOP("Text", "a list of x, y and z in the scene"));
    if (!position.isEmpty()) {
        point.position = Vec3(position[0], position[1], position[2]);
    }
    if (pixel.isEmpty() && position.isEmpty() && !problem) {
        problem = Problem{prefix, Text::tr("expected a pixel or a position")};
    }
    point.unknownFields = reader.rest();
    return point;
}

QByteArray pointsToJson(const QVector<SessionPoint> &points, const QByteArray &indent)
{
    QVector<QByteArray> lines;
    for (const SessionPoint &point : points) {
        lines += pointToJson(point);
    }
    return jsonLines(lines, indent);
}

// Rings and lines

QByteArray clicksToJson(const QVector<QPointF> &points)
{
    QJsonArray list;
    for (const QPointF &point : points) {
        list.append(QJsonArray{point.x(), point.y()});
    }
    return jsonText(list);
}

QByteArray ringsToJson(const QVector<RingClicks> &rings)
{
    QVector<QByteArray> texts;
    for (const RingClicks &ring : rings) {
        OrderedJson json;
        json.add(QStringLiteral("distanceMM"),
                 ring.distanceMM ? QJsonValue(*ring.distanceMM) : QJsonValue());
        json.add(QStringLiteral("points"), clicksToJson(ring.points));
        texts += json.toLine();
    }
    return jsonLines(texts, "  ");
}

QByteArray linesToJson(const QVector<LineClicks> &lines)
{
    QVector<QByteArray> texts;
    for (const LineClicks &line : lines) {
        OrderedJson json;
        json.add(QStringLiteral("points"), clicksToJson(line.points));
        texts += json.toLine();
    }
    return jsonLines(texts, "  ");
}

// A list of places; the names of its problems begin with @p prefix.
QVector<QPointF> clicksFromJson(FieldReader &reader, const char *name, const QString &prefix,
                                Outcome &problem)
{
    const QJsonValue value = reader.take(name);
    QVector<QPointF> points;
    if (!reader.expect(name, value, value.isArray(),
                       QT_TRANSLATE_NOOP("Text", "a list of places [x, y]"))) {
        return points;
    }
    const QJsonArray list = value.toArray();
    for (int i = 0; i < list.size() && !problem; ++i) {
        const QJsonArray xy = list[i].toArray();
        if (xy.size() == 2 && xy[0].isDouble() && xy[1].isDouble()) {
            points += QPointF(xy[0].toDouble(), xy[1].toDouble());
        } else {
            problem = Problem{
                QStringLiteral("%1%2[%3]").arg(prefix, QLatin1String(name)).arg(i),
                Text::tr("expected a list of x and y in pixels, found %1").arg(typeName(list[i]))};
        }
    }
    return points;
}

RingClicks ringFromJson(const QJsonObject &object, const QString &place, Outcome &problem)
{
    RingClicks ring;
    FieldReader reader(object, place + QLatin1Char('.'), problem);
    const QJsonValue distance = reader.take("distanceMM");
    if (!distance.isNull() && reader.expect("distanceMM", distance, distance.isDouble(),
                                            QT_TRANSLATE_NOOP("Text", "a number or null"))) {
        ring.distanceMM = distance.toDouble();
    }
    ring.points = clicksFromJson(reader, "points", place + QLatin1Char('.'), problem);
    return ring;
}

LineClicks lineFromJson(const QJsonObject &object, const QString &place, Outcome &problem)
{
    FieldReader reader(object, place + QLatin1Char('.'), problem);
    return {clicksFromJson(reader, "points", place + QLatin1Char('.'), problem)};
}

template <typename Element, typename Read>
void readObjects(FieldReader &reader, const char *name, QVector<Element> &lists, Read read,
                 Outcome &problem)
{
    const QJsonValue value = reader.take(name);
    if (!reader.expect(name, value, value.isArray(), QT_TRANSLATE_NOOP("Text", "a list"))) {
        return;
    }
    const QJsonArray list = value.toArray();
    for (int i = 0; i < list.size() && !problem; ++i) {
        const QString place = QStringLiteral("%1[%2]").arg(reader.placeOf(name)).arg(i);
        if (list[i].isObject()) {
            lists += read(list[i].toObject(), place, problem);
        } else {
            problem =
                Problem{place, Text::tr("expected an object, found %1").arg(typeName(list[i]))};
        }
    }
}

// Uncertainty

QByteArray standardUncertaintiesToJson(const StandardUncertainties &given)
{
    OrderedJson json;
    for (const StandardUncertaintyRow &row : standardUncertaintyRows()) {
        if (const std::optional<double> &number = given.*row.member) {
            json.add(QLatin1String(row.name), *number);
        }
    }
    return json.toLine();
}

void readStandardUncertainties(FieldReader &reader, Session &session, Outcome &problem)
{
    const QJsonValue value = reader.take("standardUncertainties");
    if (!reader.expect("standardUncertainties", value, value.isObject(),
                       QT_TRANSLATE_NOOP("Text", "an object"))) {
        return;
    }
    FieldReader numbers(value.toObject(), QStringLiteral("standardUncertainties."), problem);
    for (const StandardUncertaintyRow &row : standardUncertaintyRows()) {
        numbers.read(row.name, session.standardUncertainties.*row.member);
    }
}

QByteArray repeatsToJson(const QVector<QMap<QString, double>> &repeats, const QByteArray &indent)
{
    QVector<QByteArray> texts;
    for (const QMap<QString, double> &result : repeats) {
        OrderedJson json;
        for (auto number = result.begin(); number != result.end(); ++number) {
            json.add(number.key(), number.value());
        }
        texts += json.toLine();
    }
    return jsonLines(texts, indent);
}

QMap<QString, double> repeatFromJson(const QJsonObject &object, const QString &place,
                                     Outcome &problem)
{
    QMap<QString, double> result;
    for (auto member = object.begin(); member != object.end() && !problem; ++member) {
        if (member.value().isDouble()) {
            result.insert(member.key(), member.value().toDouble());
        } else {
            problem =
                Problem{place + QLatin1Char('.') + member.key(),
                        Text::tr("expected a number, found %1").arg(typeName(member.value()))};
        }
    }
    return result;
}

// Schema

QString schemaText(int minor)
{
    return QStringLiteral("%1 %2.%3")
        .arg(QLatin1String(schemaName))
        .arg(sessionSchemaMajor)
        .arg(minor);
}

void readSchema(FieldReader &reader, Session &session, Outcome &problem)
{
    static const QRegularExpression pattern(
        QStringLiteral("\\A%1 ([1-9][0-9]{0,3})\\.([0-9]{1,4})\\z").arg(QLatin1String(schemaName)));
    const QJsonValue value = reader.take("schema");
    const auto match = pattern.match(value.toString());
    if (!match.hasMatch()) {
        problem = Problem{QStringLiteral("schema"),
                          Text::tr("expected \"%1\", found %2")
                              .arg(schemaText(sessionSchemaMinor), typeName(value))};
    } else if (match.captured(1).toInt() > sessionSchemaMajor) {
        problem = Problem{QStringLiteral("schema"),
                          Text::tr("the session has version %1.%2, this program reads up to "
                                   "version %3; please use a newer Zalento")
                              .arg(match.captured(1), match.captured(2))
                              .arg(sessionSchemaMajor)};
    }
    session.schemaMinor = std::max(match.captured(2).toInt(), sessionSchemaMinor);
}

// Measurands

const char *const measurandsName = "measurements";
const char *const atHandName = "chosen";
const QByteArray memberIndent("  ");
const QByteArray measurandIndent("    "); // in the list
const QByteArray measurandMemberIndent("      ");

void readMeasurand(FieldReader &reader, Measurand &measurand, Outcome &problem)
{
    const QByteArray expectedKind =
        Text::tr("one of %1").arg(kindNames().join(QStringLiteral(", "))).toUtf8();
    reader.read("name", measurand.name);
    reader.readChoice("kind", measurand.kind, kindNamed, expectedKind.constData());
    reader.read("percentage", measurand.percentage);
    reader.read("angleDEG", measurand.angleDEG);
    reader.read("clockDEG", measurand.clockDEG);
    reader.readChoice("direction", measurand.viewDownstream, directionNamed,
                      QT_TRANSLATE_NOOP("Text", "\"downstream\" or \"upstream\""));
    reader.read("jointShown", measurand.jointShown);
    reader.read("isSet", measurand.isSet);
    reader.read("limit", measurand.limit);
    readObjects(reader, "repeats", measurand.repeats, repeatFromJson, problem);
    readObjects(reader, "points", measurand.points, pointFromJson, problem);
}

Measurand measurandFromJson(const QJsonObject &object, const QString &place, Outcome &problem)
{
    Measurand measurand;
    FieldReader reader(object, place + QLatin1Char('.'), problem);
    readMeasurand(reader, measurand, problem);
    measurand.unknownMembers = reader.rest();
    return measurand;
}

QByteArray measurandToJson(const Measurand &measurand)
{
    OrderedJson json;
    json.add(QStringLiteral("name"), measurand.name);
    json.add(QStringLiteral("kind"), infoOf(measurand.kind).nameText());
    json.add(QStringLiteral("percentage"), measurand.percentage);
    json.add(QStringLiteral("angleDEG"), measurand.angleDEG);
    json.add(QStringLiteral("clockDEG"), measurand.clockDEG);
    json.add(QStringLiteral("direction"), directionName(measurand.viewDownstream));
    json.add(QStringLiteral("jointShown"), measurand.jointShown);
    json.add(QStringLiteral("isSet"), measurand.isSet);
    json.add(QStringLiteral("limit"), measurand.limit);
    json.add(QStringLiteral("repeats"), repeatsToJson(measurand.repeats, measurandMemberIndent));
    json.add(QStringLiteral("points"), pointsToJson(measurand.points, measurandMemberIndent));
    json.addAll(measurand.unknownMembers);
    return json.toLines(measurandIndent);
}

// The first one's fields are the session's own, where programs find them that know but one.
void readMeasurands(FieldReader &reader, Session &session, Outcome &problem)
{
    readMeasurand(reader, session, problem);
    readObjects(reader, measurandsName, session.measurandsBehind, measurandFromJson, problem);
    const QJsonValue chosen = reader.take(atHandName);
    const std::optional<int> number = measurandNamed(session, chosen.toString());
    if (reader.expect(atHandName, chosen, chosen.isString() && number,
                      QT_TRANSLATE_NOOP("Text", "the name of a measurement"))) {
        takeMeasurand(session, *number);
    }
}

// A session of one is written as it was when there was but one.
void addFurtherMeasurands(OrderedJson &json, const Session &session)
{
    const QVector<Measurand> measurands = measurandsOf(session);
    if (!measurands.first().name.isEmpty()) {
        json.add(QStringLiteral("name"), measurands.first().name);
    }
    if (measurandAtHand(session) > 0) {
        json.add(QLatin1String(atHandName), session.name);
    }
    QVector<QByteArray> texts;
    for (const Measurand &measurand : measurands.mid(1)) {
        texts += measurandToJson(measurand);
    }
    if (!texts.isEmpty()) {
        json.add(QLatin1String(measurandsName), jsonLines(texts, memberIndent));
    }
}

// The rest

void readChoices(FieldReader &reader, Session &session)
{
    reader.readChoice("unit", session.unit, unitNamed,
                      QT_TRANSLATE_NOOP("Text", "\"metric\" or \"imperial\""));
    reader.read("rearCircleActive", session.rearCircleActive);
    reader.read("fitsFov", session.fitsFov);
    reader.readChoice("viewStyle", session.viewStyle, viewStyleNamed,
                      QT_TRANSLATE_NOOP("Text", "\"measure\", \"ends\" or \"full\""));
    reader.read("calibration", session.calibrationText);
    reader.read("mmPerPixel", session.mmPerPixel);
}

void addChoices(OrderedJson &json, const Session &session)
{
    json.add(QStringLiteral("kind"), infoOf(session.kind).nameText());
    json.add(QStringLiteral("unit"), unitName(session.unit));
    json.add(QStringLiteral("rearCircleActive"), session.rearCircleActive);
    json.add(QStringLiteral("clockDEG"), session.clockDEG);
    json.add(QStringLiteral("direction"), directionName(session.viewDownstream));
    json.add(QStringLiteral("jointShown"), session.jointShown);
    json.add(QStringLiteral("isSet"), session.isSet);
    json.add(QStringLiteral("viewStyle"), viewStyleName(session.viewStyle));
    json.add(QStringLiteral("calibration"), session.calibrationText);
    if (session.mmPerPixel) {
        json.add(QStringLiteral("mmPerPixel"), *session.mmPerPixel);
    }
    if (!session.laserSpots.isEmpty()) {
        json.add(QStringLiteral("laserSpots"), clicksToJson(session.laserSpots));
    }
    json.add(QStringLiteral("limit"), session.limit);
}

void readFields(FieldReader &reader, Session &session, Outcome &problem)
{
    const QJsonValue picture = reader.take("picture");
    if (reader.expect("picture", picture, picture.isObject(),
                      QT_TRANSLATE_NOOP("Text", "an object"))) {
        session.picture = pictureFromJson(picture.toObject(), problem);
    }
    readLens(reader, session, problem);
    readFilm(reader, session, problem);
    readChoices(reader, session);
    for (const SessionNumber &number : sessionNumbers()) {
        reader.read(number.name, session.*number.member);
    }
    readObjects(reader, "rings", session.rings, ringFromJson, problem);
    readObjects(reader, "lines", session.lines, lineFromJson, problem);
    session.laserSpots = clicksFromJson(reader, "laserSpots", QString(), problem);
    readStandardUncertainties(reader, session, problem);
    readMeasurands(reader, session, problem);
    session.unknownFields = reader.rest();
}

Problem parseProblem(const QByteArray &json, const QJsonParseError &error)
{
    const int line = static_cast<int>(json.left(error.offset).count('\n')) + 1;
    return {{}, Text::tr("not a JSON object: %1 in line %2").arg(error.errorString()).arg(line)};
}

} // namespace

QByteArray lensToJson(const Lens &lens)
{
    OrderedJson json;
    json.add(QStringLiteral("name"), lens.name);
    json.add(QStringLiteral("size"), QJsonArray{lens.size.width(), lens.size.height()});
    json.add(
        QStringLiteral("cameraMatrix"),
        arrayOf(lens.cameraMatrix.data(), lens.cameraMatrix.data() + lens.cameraMatrix.size()));
    json.add(QStringLiteral("distortion"),
             arrayOf(lens.distortion.data(), lens.distortion.data() + lens.distortion.size()));
    if (lens.view != LensView::Square) {
        json.add(QStringLiteral("view"), lensViewName(lens.view));
    }
    if (lens.focalLengthSDPX) {
        json.add(QStringLiteral("focalLengthSDPX"), *lens.focalLengthSDPX);
    }
    json.addAll(lens.unknownFields);
    return json.toLine();
}

Result<Lens> lensFromJson(const QByteArray &json)
{
    Outcome problem;
    const Lens lens = lensFromObject(QJsonDocument::fromJson(json).object(), problem);
    if (!problem) {
        problem = checkLens(lens);
    }
    return problem ? Result<Lens>(*problem) : Result<Lens>(lens);
}

QByteArray sessionToJson(const Session &session)
{
    const Session first = withMeasurand(session, 0);
    OrderedJson json;
    json.add(QStringLiteral("schema"), schemaText(session.schemaMinor));
    json.add(QStringLiteral("picture"), pictureToJson(session.picture));
    if (session.lens) {
        json.add(QStringLiteral("lens"), lensToJson(*session.lens));
    }
    addFilm(json, session);
    addChoices(json, first);
    for (const SessionNumber &number : sessionNumbers()) {
        json.add(QLatin1String(number.name), first.*number.member);
    }
    json.add(QStringLiteral("rings"), ringsToJson(session.rings));
    json.add(QStringLiteral("lines"), linesToJson(session.lines));
    json.add(QStringLiteral("fitsFov"), session.fitsFov);
    json.add(QStringLiteral("standardUncertainties"),
             standardUncertaintiesToJson(session.standardUncertainties));
    json.add(QStringLiteral("repeats"), repeatsToJson(first.repeats, memberIndent));
    json.add(QStringLiteral("points"), pointsToJson(first.points, memberIndent));
    addFurtherMeasurands(json, session);
    json.addAll(session.unknownFields);
    return json.toLines("") + "\n";
}

Result<Session> sessionFromJson(const QByteArray &json)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError) {
        return parseProblem(json, error);
    }
    if (!document.isObject()) {
        return Problem{{}, Text::tr("not a JSON object: found a list")};
    }
    Session session;
    Outcome problem;
    FieldReader reader(document.object(), QString(), problem);
    readSchema(reader, session, problem);
    if (!problem) {
        readFields(reader, session, problem);
    }
    if (!problem) {
        problem = checkSession(session);
    }
    return problem ? Result<Session>(*problem) : Result<Session>(session);
}

} // namespace Drevon::Zalento::Measuring
