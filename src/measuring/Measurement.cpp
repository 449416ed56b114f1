#include "measuring/Measurement.h"

#include "measuring/Editing.h"
#include "measuring/PipeView.h"
#include "measuring/Repeats.h"
#include "measuring/Text.h"
#include "measuring/UncertaintyText.h"

#include "zalento/geometry/Cylinder.h"
#include "zalento/measure/measureLine.h"
#include "zalento/measure/valueTexts.h"
#include "zalento/pipes/Pipe.h"
#include "zalento/pipes/PipeBend.h"

#include <algorithm>

namespace Drevon::Zalento::Measuring {

namespace {

constexpr double percentPerOne = 100.0;
constexpr double fractionPerPercent = 0.01;
constexpr double mmPerM = 1000.0;

Measurement measured(const QVector<Value> &values)
{
    return {MeasureState::Measured, values, {}};
}

Measurement unmeasured(MeasureState state, const QString &note)
{
    return {state, {}, note};
}

QString unitOf(Quantity quantity)
{
    switch (quantity) {
    case Quantity::Length:
        return QStringLiteral("mm");
    case Quantity::Area:
        return QStringLiteral("mm²");
    case Quantity::Fraction:
    case Quantity::Percent:
        return QStringLiteral("%");
    case Quantity::Angle:
        break;
    }
    return QStringLiteral("deg");
}

// Fractions are told in percent.
Value named(const char *name, const MeasuredValue &value, MeasureUnit unit)
{
    const double number =
        value.quantity == Quantity::Fraction ? value.number * percentPerOne : value.number;
    return {QLatin1String(name), number, unitOf(value.quantity), valueText(value, unit), {}, {}};
}

Measurement waterLevel(const Session &session)
{
    const double fraction = session.percentage * fractionPerPercent;
    return measured({{QStringLiteral("waterLevel"),
                      fraction * percentPerOne,
                      QStringLiteral("%"),
                      waterLevelText(fraction),
                      {},
                      {}}});
}

Measurement angle(const char *name, const Session &session)
{
    return measured(
        {named(name, {Quantity::Angle, drawnAngleDEG(session), NoValue::None}, session.unit)});
}

Measurement measuredByEye(const Session &session)
{
    if (!session.isSet) {
        return unmeasured(MeasureState::NotSet,
                          Text::tr("not set: set the value until the model matches the "
                                   "picture, or confirm it"));
    }
    switch (session.kind) {
    case Kind::WaterLevel:
        return waterLevel(session);
    case Kind::BranchAngle:
        return angle("branchAngle", session);
    default:
        return angle("bendAngle", session);
    }
}

LineMeasure lineMeasure(const Session &session)
{
    std::vector<Vec3> positions;
    for (const SessionPoint &point : session.points) {
        positions.push_back(point.position.value_or(Vec3()));
    }
    PipeView view(session);
    const LineScale scale{view.pipe().cylinder.radiusM * mmPerM, view.drawingWidthPX(),
                          scaleOf(session).value_or(0.0)};
    return measureLine(positions, infoOf(session.kind).mode, scale);
}

// A width has two points; more are a path.
const char *lengthName(const Session &session)
{
    return session.kind == Kind::CrackWidth && session.points.size() == 2 ? "crackWidth" : "length";
}

Measurement lineMeasurement(const Session &session)
{
    if (session.kind == Kind::CrackWidth && !scaleOf(session)) {
        return unmeasured(MeasureState::NoScale,
                          Text::tr("no scale yet: give millimetres per pixel, a calibration "
                                   "file, or the two laser spots"));
    }
    if (session.points.size() < 2) {
        return unmeasured(MeasureState::NeedsPoints, Text::tr("needs at least two points"));
    }
    const LineMeasure line = lineMeasure(session);
    if (!line.value.isMeasured()) {
        return unmeasured(MeasureState::NeedsPoints, Text::tr("the points lie on one place"));
    }
    if (line.observable == ObservableType::Area) {
        return measured({named("area", line.value, session.unit),
                         named("areaShare", line.share, session.unit)});
    }
    QVector<Value> values{named(lengthName(session), line.value, session.unit)};
    if (line.share.isMeasured()) {
        values += named("diameterShare", line.share, session.unit);
    }
    return measured(values);
}

} // namespace

Measurement measure(const Session &session)
{
    if (infoOf(session.kind).has(Uses::SetByEye)) {
        return measuredByEye(session);
    }
    Session placed = session;
    placePoints(placed);
    return lineMeasurement(placed);
}

Measurement measureWithUncertainty(const Session &session, const std::optional<AlignmentFit> &fit,
                                   UncertaintyEffort effort)
{
    Measurement measurement = measure(session);
    const auto uncertainties = uncertaintiesOf(session, fit, effort);
    for (int i = 0; i < uncertainties.size(); ++i) {
        Value &value = measurement.values[i];
        value.uncertainty = uncertainties[i];
        value.repeats = repeatStatistics(session, value);
    }
    return measurement;
}

QString Value::fullText() const
{
    return uncertainty ? textWithUncertainty(*this, uncertainty->expanded()) : text;
}

// The bend itself knows the steps that it is drawn in.
double drawnAngleDEG(const Session &session)
{
    const AngleRow &angles = infoOf(session.kind).angle;
    const double angleDEG = std::clamp(session.angleDEG, angles.smallestDEG, angles.largestDEG);
    if (session.kind != Kind::BendAngle) {
        return angleDEG;
    }
    PipeBend bend;
    bend.setAngleDeg(angleDEG);
    return bend.angleDeg;
}

} // namespace Drevon::Zalento::Measuring
