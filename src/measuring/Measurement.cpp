#include "measuring/Measurement.h"

#include "measuring/Replay.h"

#include "zalento/settings/UnitConv.h"

#include <cmath>

namespace Drevon::Zalento::Measuring {

namespace {

constexpr double percentPerOne = 100.0;

const Pipe *pipeOf(ZaItem &item)
{
    return dynamic_cast<const Pipe *>(&item.getCurrentViewObject());
}

QString fixed(double number, int decimals)
{
    return QString::number(number, 'f', decimals);
}

MeasuredValue percentValue(const QString &name, double percent, const QString &text)
{
    return {name, percent, QStringLiteral("%"), text + QStringLiteral(" %")};
}

MeasuredValue lengthValue(const QString &name, double mm, MeasureUnit unit)
{
    return {name, mm, QStringLiteral("mm"), UnitConv::lenStr(mm, unit)};
}

MeasuredValue angleValue(const QString &name, double deg)
{
    return {name, deg, QStringLiteral("deg"), QString::number(deg) + QStringLiteral("°")};
}

Measurement measured(const QVector<MeasuredValue> &values)
{
    return {MeasureState::Measured, values, {}};
}

Measurement needsPoints(const QString &note)
{
    return {MeasureState::NeedsPoints, {}, note};
}

Measurement noScale()
{
    return {MeasureState::NoScale,
            {},
            QStringLiteral("no scale yet: give millimetres per pixel, a calibration file, or the "
                           "two laser spots")};
}

Measurement waterLevel(const Pipe &pipe)
{
    const double percent = pipe.measure1 * percentPerOne;
    // Rounded as on the overlay.
    const int shown = static_cast<int>(percent + 0.5);
    return measured({percentValue(QStringLiteral("waterLevel"), percent, QString::number(shown))});
}

Measurement area(const Pipe &pipe, MeasureUnit unit)
{
    const double share = pipe.measure2 * percentPerOne;
    return measured({{QStringLiteral("area"), pipe.measure1, QStringLiteral("mm²"),
                      UnitConv::areaStr(pipe.measure1, unit)},
                     percentValue(QStringLiteral("areaShare"), share, fixed(share, 0))});
}

Measurement crossSectionLength(const Pipe &pipe, MeasureUnit unit)
{
    QVector<MeasuredValue> values{lengthValue(QStringLiteral("length"), pipe.measure1, unit)};
    if (pipe.hitPoints.size() == 2) {
        const double share = pipe.measure1 * percentPerOne / pipe.diameterMM;
        values += percentValue(QStringLiteral("diameterShare"), share, fixed(share, 1));
    }
    return measured(values);
}

Measurement pipeMeasurement(const Pipe &pipe, MeasureUnit unit)
{
    if (pipe.measureMode == MeasureMode::WaterLevel) {
        return waterLevel(pipe);
    }
    if (pipe.hitPoints.size() < 2) {
        return needsPoints(QStringLiteral("needs at least two points"));
    }
    // The overlay keeps the last measure; only what it observes was measured just now.
    if (pipe.observable == ObservableType::Area) {
        return area(pipe, unit);
    }
    if (pipe.observable != ObservableType::Length || !std::isfinite(pipe.measure1)) {
        return needsPoints(QStringLiteral("the points lie on one place"));
    }
    switch (pipe.measureMode) {
    case MeasureMode::CrossSection:
        return crossSectionLength(pipe, unit);
    case MeasureMode::CrackWidth:
        return measured({lengthValue(QStringLiteral("crackWidth"), pipe.measure1, unit)});
    default:
        return measured({lengthValue(QStringLiteral("length"), pipe.measure1, unit)});
    }
}

} // namespace

bool hasScale(ZaItem &item)
{
    const Pipe *pipe = pipeOf(item);
    return pipe && std::isfinite(pipe->laserScale) && pipe->laserScale > 0.0;
}

Measurement measure(ZaItem &item)
{
    settle(item);
    PipeBase &object = item.getCurrentViewObject();
    if (const auto *lateral = dynamic_cast<PipeLateral *>(&object)) {
        return measured({angleValue(QStringLiteral("branchAngle"), lateral->getAngleDeg())});
    }
    if (const auto *bend = dynamic_cast<PipeBendBase *>(&object)) {
        return measured({angleValue(QStringLiteral("bendAngle"), bend->angleDeg)});
    }
    const Pipe &pipe = *pipeOf(item);
    if (pipe.measureMode == MeasureMode::CrackWidth && !hasScale(item)) {
        return noScale();
    }
    return pipeMeasurement(pipe, MeasureUnit(item.measureUnit()));
}

} // namespace Drevon::Zalento::Measuring
