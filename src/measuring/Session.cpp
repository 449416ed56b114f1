#include "measuring/Session.h"

#include "measuring/Limit.h"
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
    return std::tie(s.kind, s.unit, s.rearCircleActive, s.clockDEG, s.viewDownstream, s.jointShown,
                    s.isSet, s.viewStyle, s.calibrationText, s.mmPerPixel, s.fitsFov, s.limit,
                    s.repeats, s.lens, s.schemaMinor);
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

Outcome checkPoint(const SessionPoint &point, int index)
{
    const Vec3 position = point.position.value_or(Vec3());
    const double numbers[] = {point.pixel.x(), point.pixel.y(), position.x, position.y, position.z};
    for (const double number : numbers) {
        if (!std::isfinite(number)) {
            return Problem{QStringLiteral("points[%1]").arg(index),
                           Text::tr("expected finite numbers")};
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

Outcome checkLimit(const QString &text)
{
    const Result<Limit> limit = text.isEmpty() ? Limit() : limitFromText(text);
    return limit ? Outcome() : Outcome(limit.problem());
}

} // namespace

bool operator==(const PictureIdentity &a, const PictureIdentity &b)
{
    return std::tie(a.path, a.size, a.sha256, a.unknownFields) ==
           std::tie(b.path, b.size, b.sha256, b.unknownFields);
}

bool operator==(const SessionPoint &a, const SessionPoint &b)
{
    return samePoint(a.pixel, b.pixel) && sameVector(a.position, b.position) &&
           a.unknownFields == b.unknownFields;
}

bool operator==(const Session &a, const Session &b)
{
    for (const SessionNumber &number : sessionNumbers()) {
        if (a.*number.member != b.*number.member) {
            return false;
        }
    }
    return choicesOf(a) == choicesOf(b) && a.picture == b.picture && a.points == b.points &&
           sameRings(a.rings, b.rings) && sameLines(a.lines, b.lines) &&
           samePoints(a.laserSpots, b.laserSpots) &&
           a.standardUncertainties == b.standardUncertainties && a.unknownFields == b.unknownFields;
}

const QVector<SessionNumber> &sessionNumbers()
{
    static const QVector<SessionNumber> numbers{
        {"diameterMM", &Session::diameterMM, smallestDiameterMM, largestDiameterMM},
        {"offset", &Session::offset, -largestShift, largestShift},
        {"rollDEG", &Session::rollDEG, -largestRollDEG, largestRollDEG},
        {"cameraHeightPercent", &Session::cameraHeightPercent, 0.0, 100.0},
        {"fovYDEG", &Session::fovYDEG, smallestFovDEG, largestFovDEG},
        {"rearCircleX", &Session::rearCircleX, -largestShift, largestShift},
        {"rearCircleY", &Session::rearCircleY, -largestShift, largestShift},
        {"mouthPercent", &Session::mouthPercent, smallestMouthPercent, largestMouthPercent},
        {"percentage", &Session::percentage, 0.0, 100.0},
        {"angleDEG", &Session::angleDEG, 0.0, 180.0},
    };
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
    if (const Outcome problem = checkNumber(QStringLiteral("clockDEG"), session.clockDEG,
                                            -largestClockDEG, largestClockDEG)) {
        return problem;
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
    if (const Outcome problem = checkLimit(session.limit)) {
        return problem;
    }
    if (session.lens) {
        if (const Outcome problem = checkSessionLens(*session.lens, session.picture.size)) {
            return problem;
        }
    }
    const int spots = session.laserSpots.size();
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
    for (int i = 0; i < session.points.size(); ++i) {
        if (const Outcome problem = checkPoint(session.points[i], i)) {
            return problem;
        }
    }
    return {};
}

} // namespace Drevon::Zalento::Measuring
