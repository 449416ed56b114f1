#include "measuring/Measurands.h"

#include "measuring/Count.h"
#include "measuring/Editing.h"
#include "measuring/Text.h"

#include <algorithm>

namespace Drevon::Zalento::Measuring {

namespace {

void setMeasurands(Session &session, const QVector<Measurand> &measurands, int atHand)
{
    static_cast<Measurand &>(session) = measurands[atHand];
    session.measurandsBefore = measurands.mid(0, atHand);
    session.measurandsBehind = measurands.mid(atHand + 1);
}

// "Crack width", then "Crack width 2".
QString freeName(const QVector<Measurand> &measurands, Kind kind)
{
    const QString title = translated(infoOf(kind).title);
    QString name = title;
    const auto isTaken = [&name](const Measurand &other) { return other.name == name; };
    for (int number = 2; std::any_of(measurands.begin(), measurands.end(), isTaken); ++number) {
        name = QStringLiteral("%1 %2").arg(title).arg(number);
    }
    return name;
}

bool isBegun(const Session &session)
{
    const bool isSetByEye = infoOf(session.kind).has(Uses::SetByEye) && session.isSet;
    return isSetByEye || !session.points.isEmpty() || !session.repeats.isEmpty();
}

std::optional<int> lastOfKind(const QVector<Measurand> &measurands, Kind kind)
{
    for (int number = countOf(measurands) - 1; number >= 0; --number) {
        if (measurands[number].kind == kind) {
            return number;
        }
    }
    return std::nullopt;
}

// Among several a name that came with the kind goes with it.
void startKindAtHand(Session &session, Kind kind)
{
    const bool isNamedByKind = session.name.startsWith(translated(infoOf(session.kind).title));
    startKind(session, kind);
    if (isNamedByKind) {
        session.name.clear();
        session.name = freeName(measurandsOf(session), kind);
    }
}

} // namespace

QVector<Measurand> measurandsOf(const Session &session)
{
    return session.measurandsBefore + QVector<Measurand>{session} + session.measurandsBehind;
}

int measurandAtHand(const Session &session)
{
    return countOf(session.measurandsBefore);
}

void takeMeasurand(Session &session, int number)
{
    if (number != measurandAtHand(session)) {
        setMeasurands(session, measurandsOf(session), number);
    }
}

Session withMeasurand(Session session, int number)
{
    takeMeasurand(session, number);
    return session;
}

std::optional<int> measurandNamed(const Session &session, const QString &name)
{
    const QVector<Measurand> measurands = measurandsOf(session);
    for (int number = 0; number < measurands.size(); ++number) {
        if (measurands[number].name == name) {
            return number;
        }
    }
    return std::nullopt;
}

void addMeasurand(Session &session, Kind kind)
{
    if (session.name.isEmpty()) {
        session.name = freeName({}, session.kind);
    }
    QVector<Measurand> measurands = measurandsOf(session);
    Session added;
    startKind(added, kind);
    added.name = freeName(measurands, kind);
    measurands += added;
    setMeasurands(session, measurands, countOf(measurands) - 1);
}

void changeKind(Session &session, Kind kind)
{
    if (isBegun(session)) {
        addMeasurand(session, kind);
        return;
    }
    const std::optional<int> last = lastOfKind(measurandsOf(session), kind);
    if (!last) {
        startKindAtHand(session, kind);
        return;
    }
    const int empty = measurandAtHand(session);
    takeMeasurand(session, *last);
    removeMeasurand(session, empty);
}

Outcome renameMeasurand(Session &session, int number, const QString &name)
{
    QVector<Measurand> measurands = measurandsOf(session);
    measurands[number].name = name;
    Session renamed = session;
    setMeasurands(renamed, measurands, measurandAtHand(session));
    if (const Outcome problem = checkSession(renamed)) {
        return Problem{{}, problem->what};
    }
    session = renamed;
    return {};
}

void removeMeasurand(Session &session, int number)
{
    QVector<Measurand> measurands = measurandsOf(session);
    if (measurands.size() == 1) {
        return;
    }
    measurands.remove(number);
    const int atHand = measurandAtHand(session);
    const int next = number < atHand ? atHand - 1 : atHand;
    setMeasurands(session, measurands, std::min(next, countOf(measurands) - 1));
}

void forEachMeasurand(Session &session, const std::function<void(Session &)> &edit)
{
    const int atHand = measurandAtHand(session);
    for (int number = 0; number < measurandsOf(session).size(); ++number) {
        takeMeasurand(session, number);
        edit(session);
    }
    takeMeasurand(session, atHand);
}

} // namespace Drevon::Zalento::Measuring
