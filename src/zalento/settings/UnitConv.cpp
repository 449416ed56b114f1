#include "zalento/settings/UnitConv.h"

#include "zalento/math/angles.h"
#include "zalento/math/truncateToInt.h"

#include <cmath>

namespace Drevon::Zalento {

namespace {

constexpr double mmPerInch = 25.4;
constexpr double inchesPerFoot = 12.0;
constexpr double mm2PerInch2 = 645.16;
constexpr double inches2PerFoot2 = 144.0;

constexpr double hoursPerTurn = 12.0;
constexpr double degreesPerTurn = 360.0;
constexpr double degreesPerHour = 30.0;
// Twelve o'clock stands at 90 degrees; a whole turn more keeps the remainder positive for a dial.
constexpr long long twelveOClockDeg = 450;
constexpr double hourAtZeroDegrees = 3.0;

QString number(double value, int decimals)
{
    return QString::number(value, 'f', decimals);
}

QString wholeNumber(double value)
{
    return QString::number(roundTo<qlonglong>(value));
}

QString metricLength(double mm, bool forceLarge, bool withUnit, bool forceSmall)
{
    const double size = std::abs(mm);
    const bool inMetres = !forceSmall && (forceLarge || size >= 1000.0);
    if (inMetres) {
        return number(mm * 0.001, 3) + (withUnit ? QStringLiteral(" m") : QString());
    }
    if (forceSmall || size < 100.0) {
        return wholeNumber(mm) + (withUnit ? QStringLiteral(" mm") : QString());
    }
    return number(mm * 0.1, 1) + (withUnit ? QStringLiteral(" cm") : QString());
}

QString imperialLength(double mm, bool forceLarge, bool withUnit, bool forceSmall)
{
    const double ft = UnitConv::mmToft(mm);
    if (!forceSmall && (forceLarge || std::abs(ft) >= 1.0)) {
        return number(ft, 3) + (withUnit ? QStringLiteral("'") : QString());
    }
    return number(UnitConv::mmToInch(mm), 2) + (withUnit ? QStringLiteral("''") : QString());
}

} // namespace

QChar UnitConv::decimalSeparator = QLatin1Char('.');

double UnitConv::mmToInch(double mm)
{
    return mm / mmPerInch;
}

double UnitConv::inchTomm(double inch)
{
    return inch * mmPerInch;
}

int UnitConv::mmToInch100(int mm)
{
    return truncateToInt(mm / mmPerInch * 100.0);
}

int UnitConv::inch100Tomm(int inch100)
{
    return truncateToInt(inch100 / 100.0 * mmPerInch);
}

double UnitConv::mmToft(double mm)
{
    return mm / mmPerInch / inchesPerFoot;
}

double UnitConv::mm2Toft2(double mm2)
{
    return mm2 / mm2PerInch2 / inches2PerFoot2;
}

int UnitConv::ftTomm(double ft)
{
    return truncateToInt(ft * inchesPerFoot * mmPerInch);
}

double UnitConv::ftTom(double ft)
{
    return ft * inchesPerFoot * mmPerInch * 0.001;
}

QString UnitConv::lenStr(double mm, MeasureUnit unit, bool forceLarge, bool withUnit,
                         bool forceSmall)
{
    return replaceDecimalSeparator(unit == MeasureUnit::Metric
                                       ? metricLength(mm, forceLarge, withUnit, forceSmall)
                                       : imperialLength(mm, forceLarge, withUnit, forceSmall));
}

QString UnitConv::lenStr(double mm, MeasureUnit unit)
{
    return lenStr(mm, unit, false, true, false);
}

QString UnitConv::mmOrInchStr(double mm, MeasureUnit unit)
{
    return lenStr(mm, unit, false, true, true);
}

QString UnitConv::areaStr(double mm2, MeasureUnit unit)
{
    QString text;
    if (unit == MeasureUnit::Metric) {
        text = mm2 < 100000.0 ? number(mm2 * 0.01, 1) + QStringLiteral(" cm²")
                              : number(mm2 * 1e-06, 2) + QStringLiteral(" m²");
    } else {
        const double ft2 = mm2Toft2(mm2);
        text = ft2 < 1.0 ? number(ft2 * inches2PerFoot2, 1) + QStringLiteral(" inch²")
                         : number(ft2, 2) + QStringLiteral(" ft²");
    }
    return replaceDecimalSeparator(text);
}

QString UnitConv::replaceDecimalSeparator(const QString &s)
{
    return QString(s).replace(QLatin1Char('.'), decimalSeparator);
}

QString UnitConv::cultureIndependentDecimalSeparator(const QString &s)
{
    return QString(s).replace(QLatin1Char(','), QLatin1Char('.'));
}

double UnitConv::clockH2AngleDEG(double hours)
{
    const double onDial = hours > hoursPerTurn ? hours - hoursPerTurn : hours;
    const long long clockwise = truncateToInt(onDial / hoursPerTurn * degreesPerTurn);
    return static_cast<double>((twelveOClockDeg - clockwise) % 360);
}

double UnitConv::clockH2AngleRAD(double hours)
{
    return clockH2AngleDEG(hours) * radiansPerDegree;
}

double UnitConv::angleDEG2ClockH(double angleDEG)
{
    const double hours = hourAtZeroDegrees - std::fmod(angleDEG, degreesPerTurn) / degreesPerHour;
    return hours < 0 ? hours + hoursPerTurn : hours;
}

double UnitConv::angleRAD2ClockH(double angleRAD)
{
    return angleDEG2ClockH(angleRAD * degreesPerRadian);
}

} // namespace Drevon::Zalento
