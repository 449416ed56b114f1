#include "zalento/measure/valueTexts.h"

#include "zalento/math/truncateToInt.h"
#include "zalento/settings/UnitConv.h"

namespace Drevon::Zalento {

namespace {

constexpr int percentPerOne = 100;

QString percentText(double percent, int decimals)
{
    return QStringLiteral("%1 %").arg(QString::number(percent, 'f', decimals));
}

} // namespace

QString valueText(const MeasuredValue &value, MeasureUnit unit)
{
    switch (value.quantity) {
    case Quantity::Length:
        return UnitConv::lenStr(value.number, unit);
    case Quantity::Area:
        return UnitConv::areaStr(value.number, unit);
    case Quantity::Fraction:
        return percentText(value.number * percentPerOne, 0);
    case Quantity::Percent:
        return percentText(value.number, 1);
    case Quantity::Angle:
        break;
    }
    return QString::number(value.number) + QStringLiteral("°");
}

QString lengthWithShareText(const LineMeasure &measure, MeasureUnit unit)
{
    const QString length = valueText(measure.value, unit);
    return measure.share.quantity == Quantity::Percent
               ? QStringLiteral("%1 (%2)").arg(length, valueText(measure.share, unit))
               : length;
}

int waterLevelInPercent(double fraction)
{
    return truncateToInt(fraction * percentPerOne + 0.5);
}

QString waterLevelText(double fraction)
{
    return QStringLiteral("%1 %").arg(waterLevelInPercent(fraction));
}

} // namespace Drevon::Zalento
