#include "measuring/Session.h"

#include "measuring/Count.h"
#include "measuring/Limit.h"
#include "measuring/Measurands.h"
#include "measuring/Text.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace Drevon::Zalento::Measuring {

namespace {

// Far more than any pipe, and small enough for every computation to stay finite.
constexpr double smallestDiameterMM = 1.0;
constexpr double largestDiameterMM = 1e5;
// Of gesture units: many diameters away from the picture.
constexpr double largestShift = 1e5;
constexpr double largestRollDEG = 3600.0;
// Months.
constexpr double largestFilmSeconds = 1e7;
constexpr int largestFrameNumber = 1000000000;
// Some lines of text.
constexpr int largestNameLength = 100;

struct MeasurandNumber
{
    const char *name;
    double Measurand::*member;
    double smallest;
    double largest;
};

constexpr MeasurandNumber measurandNumbers[] = {
    {"percentage", &Measurand::percentage, 0.0, 100.0},
    {"angleDEG", &Measurand::angleDEG, 0.0, 180.0},
};

QVector<SessionNumber> withMeasurandNumbers(QVector<SessionNumber> numbers)
{
    for (const MeasurandNumber &number : measurandNumbers) {
        numbers.append({number.name, number.member, number.smallest, number.largest});
    }
    return numbers;
}

template <typename Value>
struct Choice
{
    const char *name;
    Value value;
};

constexpr Choice<MeasureUnit> units[] = {{"metric", MeasureUnit::Metric},
                                         {"imperial", MeasureUnit::Imperial}};
constexpr Choice<bool> directions[] = {{"downstream", true}, {"upstream", false}};
constexpr Choice<ViewStyle> viewStyles[] = {
    {"measure", ViewStyle::MeasureOnly}, {"ends", ViewStyle::Ends}, {"full", ViewStyle::Full}};

template <typename Value, std::size_t count>
QString nameIn(const Choice<Value> (&choices)[count], Value value)
{
    for (const auto &choice : choices) {
        if (choice.value == value) {
            return QLatin1String(choice.name);
        }
    }
    return {};
}

template <typename Value, std::size_t count>
std::optional<Value> valueIn(const Choice<Value> (&choices)[count], const QString &name)
{
    for (const auto &choice : choices) {
        if (name == QLatin1String(choice.name)) {
            return choice.value;
        }
    }
    return std::nullopt;
}

bool sameVector(const std::optional<Vec3> &a, const std::optional<Vec3> &b)
{
    if (!a || !b) {
        return !a && !b;
    }
    return a->x == b->x && a->y == b->y && a->z == b->z;
}

// QPointF compares with a tolerance.
bool samePoint(const QPointF &a, const QPointF &b)
{
    return std::make_tuple(a.x(), a.y()) == std::make_tuple(b.x(), b.y());
}

bool samePoints(const QVector<QPointF> &a, const QVector<QPointF> &b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), samePoint);
}

bool sameRings(const QVector<RingClicks> &a, const QVector<RingClicks> &b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const RingClicks &x, const RingClicks &y) {
                          return x.distanceMM == y.distanceMM && samePoints(x.points, y.points);
                      });
}

bool sameLines(const QVector<LineClicks> &a, const QVector<LineClicks> &b)
{
    return std::equal(
        a.begin(), a.end(), b.begin(), b.end(),
        [](const LineClicks &x, const LineClicks &y) { return samePoints(x.points, y.points); });
}

auto choicesOf(const Session &s)
{
    return std::tie(s.unit, s.rearCircleActive, s.viewStyle, s.calibrationText, s.mmPerPixel,
                    s.fitsFov, s.lens, s.film, s.counterM, s.schemaMinor);
}

auto fieldsOf(const Measurand &m)
{
    return std::tie(m.name, m.kind, m.percentage, m.angleDEG, m.clockDEG, m.viewDownstream,
                    m.jointShown, m.isSet, m.repeats, m.limit, m.points, m.unknownMembers);
}

Outcome checkClicks(const QString &place, const QVector<QPointF> &points)
{
    for (int i = 0; i < points.size(); ++i) {
        if (!std::isfinite(points[i].x()) || !std::isfinite(points[i].y())) {
            return Problem{QStringLiteral("%1.points[%2]").arg(place).arg(i),
                           Text::tr("expected finite numbers")};
        }
    }
    return {};
}

Outcome checkRing(const RingClicks &ring, int index)
{
    const QString place = QStringLiteral("rings[%1]").arg(index);
    if (ring.distanceMM) {
        if (const Outcome problem =
                checkNumber(place + QStringLiteral(".distanceMM"), *ring.distanceMM,
                            -largestRingDistanceMM, largestRingDistanceMM)) {
            return problem;
        }
    }
    return checkClicks(place, ring.points);
}

Outcome checkPoint(const SessionPoint &point, const QString &place)
{
    const Vec3 position = point.position.value_or(Vec3());
    const double numbers[] = {point.pixel.x(), point.pixel.y(), position.x, position.y, position.z};
    for (const double number : numbers) {
        if (!std::isfinite(number)) {
            return Problem{place, Text::tr("expected finite numbers")};
        }
    }
    return {};
}

Outcome checkStandardUncertainties(const StandardUncertainties &given)
{
    for (const StandardUncertaintyRow &row : standardUncertaintyRows()) {
        const QString place =
            QStringLiteral("standardUncertainties.%1").arg(QLatin1String(row.name));
        if (const Outcome problem = checkNumber(place, (given.*row.member).value_or(0.0), 0.0,
                                                largestStandardUncertainty)) {
            return problem;
        }
    }
    return {};
}

Outcome checkSessionLens(const Lens &lens, const QSize &picture)
{
    if (!picture.isEmpty() && lens.size != picture) {
        return Problem{QStringLiteral("lens.size"),
                       Text::tr("the lens is for pictures of %1 x %2 pixels, this one has %3 x %4")
                           .arg(lens.size.width())
                           .arg(lens.size.height())
                           .arg(picture.width())
                           .arg(picture.height())};
    }
    return checkLens(lens);
}

Outcome checkLimit(const QString &text, const QString &prefix)
{
    const Result<Limit> limit = text.isEmpty() ? Limit() : limitFromText(text);
    return limit ? Outcome()
                 : Outcome(Problem{prefix + limit.problem().place, limit.problem().what});
}

Outcome checkFilm(const Session &session)
{
    const FilmFrame film = session.film.value_or(FilmFrame());
    if (const Outcome problem =
            checkNumber(QStringLiteral("film.frame"), film.number, 0, largestFrameNumber)) {
        return problem;
    }
    if (const Outcome problem =
            checkNumber(QStringLiteral("film.seconds"), film.seconds, 0.0, largestFilmSeconds)) {
        return problem;
    }
    return checkNumber(QStringLiteral("counterM"), session.counterM.value_or(0.0), -largestCounterM,
                       largestCounterM);
}

// A name stands in lines and in cells of tables.
Outcome checkName(const QString &name, bool mayBeEmpty, const QString &prefix)
{
    const bool isPrintable =
        std::all_of(name.begin(), name.end(), [](QChar c) { return c.isPrint(); });
    if (isPrintable && name.trimmed() == name && name.size() <= largestNameLength &&
        (mayBeEmpty || !name.isEmpty())) {
        return {};
    }
    return Problem{prefix + QStringLiteral("name"),
                   Text::tr("expected a name of one line and at most %1 characters, found \"%2\"")
                       .arg(largestNameLength)
                       .arg(name)};
}

Outcome checkMeasurand(const Measurand &measurand, const QString &prefix)
{
    for (const MeasurandNumber &number : measurandNumbers) {
        if (const Outcome problem =
                checkNumber(prefix + QLatin1String(number.name), measurand.*number.member,
                            number.smallest, number.largest)) {
            return problem;
        }
    }
    if (const Outcome problem = checkNumber(prefix + QStringLiteral("clockDEG"), measurand.clockDEG,
                                            -largestClockDEG, largestClockDEG)) {
        return problem;
    }
    if (const Outcome problem = checkLimit(measurand.limit, prefix)) {
        return problem;
    }
    for (int i = 0; i < measurand.points.size(); ++i) {
        if (const Outcome problem =
                checkPoint(measurand.points[i], prefix + QStringLiteral("points[%1]").arg(i))) {
            return problem;
        }
    }
    return {};
}

// The first one's fields stand beside those of the picture.
Outcome checkMeasurands(const QVector<Measurand> &measurands)
{
    QStringList names;
    for (int i = 0; i < measurands.size(); ++i) {
        const Measurand &measurand = measurands[i];
        const QString prefix = i == 0 ? QString() : QStringLiteral("measurements[%1].").arg(i - 1);
        if (const Outcome problem = checkMeasurand(measurand, prefix)) {
            return problem;
        }
        if (const Outcome problem = checkName(measurand.name, measurands.size() == 1, prefix)) {
            return problem;
        }
        if (names.contains(measurand.name)) {
            return Problem{prefix + QStringLiteral("name"),
                           Text::tr("another measurement is named \"%1\"").arg(measurand.name)};
        }
        names += measurand.name;
    }
    return {};
}

} // namespace

bool operator==(const FilmFrame &a, const FilmFrame &b)
{
    return std::tie(a.path, a.number, a.seconds, a.unknownFields) ==
           std::tie(b.path, b.number, b.seconds, b.unknownFields);
}

bool operator==(const SessionPoint &a, const SessionPoint &b)
{
    return samePoint(a.pixel, b.pixel) && sameVector(a.position, b.position) &&
           a.unknownFields == b.unknownFields;
}

bool operator==(const Measurand &a, const Measurand &b)
{
    return fieldsOf(a) == fieldsOf(b);
}

bool operator==(const Session &a, const Session &b)
{
    for (const SessionNumber &number : sessionNumbers()) {
        if (a.*number.member != b.*number.member) {
            return false;
        }
    }
    return choicesOf(a) == choicesOf(b) && a.picture == b.picture && fieldsOf(a) == fieldsOf(b) &&
           a.measurandsBefore == b.measurandsBefore && a.measurandsBehind == b.measurandsBehind &&
           sameRings(a.rings, b.rings) && sameLines(a.lines, b.lines) &&
           samePoints(a.laserSpots, b.laserSpots) &&
           a.standardUncertainties == b.standardUncertainties && a.unknownFields == b.unknownFields;
}

const QVector<SessionNumber> &sessionNumbers()
{
    static const QVector<SessionNumber> numbers = withMeasurandNumbers({
        {"diameterMM", &Session::diameterMM, smallestDiameterMM, largestDiameterMM},
        {"offset", &Session::offset, -largestShift, largestShift},
        {"rollDEG", &Session::rollDEG, -largestRollDEG, largestRollDEG},
        {"cameraHeightPercent", &Session::cameraHeightPercent, 0.0, 100.0},
        {"fovYDEG", &Session::fovYDEG, smallestFovDEG, largestFovDEG},
        {"rearCircleX", &Session::rearCircleX, -largestShift, largestShift},
        {"rearCircleY", &Session::rearCircleY, -largestShift, largestShift},
        {"mouthPercent", &Session::mouthPercent, smallestMouthPercent, largestMouthPercent},
    });
    return numbers;
}

QString unitName(MeasureUnit unit)
{
    return nameIn(units, unit);
}

std::optional<MeasureUnit> unitNamed(const QString &name)
{
    return valueIn(units, name);
}

QString directionName(bool downstream)
{
    return nameIn(directions, downstream);
}

std::optional<bool> directionNamed(const QString &name)
{
    return valueIn(directions, name);
}

QString viewStyleName(ViewStyle style)
{
    return nameIn(viewStyles, style);
}

std::optional<ViewStyle> viewStyleNamed(const QString &name)
{
    return valueIn(viewStyles, name);
}

Outcome checkNumber(const QString &name, double value, double smallest, double largest)
{
    if (value >= smallest && value <= largest) {
        return {};
    }
    return Problem{name, Text::tr("expected a number from %1 to %2, found %3")
                             .arg(smallest)
                             .arg(largest)
                             .arg(value)};
}

Outcome checkSession(const Session &session)
{
    for (const SessionNumber &number : sessionNumbers()) {
        if (const Outcome problem = checkNumber(QLatin1String(number.name), session.*number.member,
                                                number.smallest, number.largest)) {
            return problem;
        }
    }
    if (session.mmPerPixel) {
        if (const Outcome problem = checkNumber(QStringLiteral("mmPerPixel"), *session.mmPerPixel,
                                                smallestMMPerPixel, largestMMPerPixel)) {
            return problem;
        }
    }
    if (const Outcome problem = checkStandardUncertainties(session.standardUncertainties)) {
        return problem;
    }
    if (session.lens) {
        if (const Outcome problem = checkSessionLens(*session.lens, session.picture.size)) {
            return problem;
        }
    }
    if (const Outcome problem = checkFilm(session)) {
        return problem;
    }
    const int spots = countOf(session.laserSpots);
    if (spots != 0 && spots != laserSpotCount) {
        return Problem{QStringLiteral("laserSpots"),
                       Text::tr("expected two places, found %1").arg(spots)};
    }
    for (int i = 0; i < session.rings.size(); ++i) {
        if (const Outcome problem = checkRing(session.rings[i], i)) {
            return problem;
        }
    }
    for (int i = 0; i < session.lines.size(); ++i) {
        if (const Outcome problem =
                checkClicks(QStringLiteral("lines[%1]").arg(i), session.lines[i].points)) {
            return problem;
        }
    }
    return checkMeasurands(measurandsOf(session));
}

} // namespace Drevon::Zalento::Measuring
