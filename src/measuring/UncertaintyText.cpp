#include "measuring/UncertaintyText.h"

#include "zalento/settings/UnitConv.h"

#include <array>
#include <cmath>
#include <utility>

namespace Drevon::Zalento::Measuring {

namespace {

constexpr double mmPerInch = 25.4;
constexpr double mmPerFoot = 12 * mmPerInch;

// Of an uncertainty's first two digits: from here on one is enough.
constexpr double oneDigitFrom = 30.0;

struct ShownUnit
{
    QString suffix; ///< with the space before it
    double size;    ///< in the value's unit
    /** Of the unit that tables have instead. */
    QString tableSuffix;
    int tableDecimals; ///< with which a table tells as much as the overlay does in this unit
};

// The suffixes of UnitConv's texts and of percentages and angles, longer ones first.
const std::array<ShownUnit, 11> &shownUnits()
{
    const QString mm = QStringLiteral(" mm");
    const QString cm2 = QStringLiteral(" cm²");
    const QString inch = QStringLiteral("''");
    const QString inch2 = QStringLiteral(" inch²");
    const QString percent = QStringLiteral(" %");
    const QString degree = QStringLiteral("°");
    static const std::array<ShownUnit, 11> units{{
        {cm2, 100.0, cm2, 1},
        {QStringLiteral(" m²"), 1e6, cm2, -2},
        {inch2, mmPerInch * mmPerInch, inch2, 1},
        {QStringLiteral(" ft²"), mmPerFoot * mmPerFoot, inch2, 0},
        {mm, 1.0, mm, 0},
        {QStringLiteral(" cm"), 10.0, mm, 0},
        {QStringLiteral(" m"), 1000.0, mm, 0},
        {inch, mmPerInch, inch, 2},
        {QStringLiteral("'"), mmPerFoot, inch, 2},
        {percent, 1.0, percent, 0},
        {degree, 1.0, degree, 0},
    }};
    return units;
}

// Of a value in @p unit with this text.
ShownUnit shownUnitOf(const QString &text, const QString &unit)
{
    for (const ShownUnit &shown : shownUnits()) {
        if (text.endsWith(shown.suffix)) {
            return shown;
        }
    }
    const QString suffix = QLatin1Char(' ') + unit;
    return {suffix, 1.0, suffix, 0};
}

ShownUnit shownUnitOf(const Value &value)
{
    return shownUnitOf(value.text, value.unit);
}

// Decimals with which an uncertainty is told; fewer than none for one of tens or hundreds.
int decimalsOf(double uncertainty)
{
    if (!(uncertainty > 0.0)) {
        return 0;
    }
    const int exponent = static_cast<int>(std::floor(std::log10(uncertainty)));
    const double twoDigits = std::round(uncertainty * std::pow(10.0, 1 - exponent));
    // One digit of 0.096 is told as 0.10: what rounds up to a 1 has the digits of a 1.
    return twoDigits < oneDigitFrom ? 1 - exponent : -exponent;
}

QString rounded(double number, int decimals)
{
    if (decimals >= 0) {
        return QString::number(number, 'f', decimals);
    }
    const double place = std::pow(10.0, -decimals);
    return QString::number(std::round(number / place) * place, 'f', 0);
}

// Lengths and areas have the decimal mark of the overlay's texts.
QString marked(const Value &value, const QString &number)
{
    const bool isSize = value.unit.startsWith(QLatin1String("mm"));
    return isSize ? UnitConv::replaceDecimalSeparator(number) : number;
}

} // namespace

QString textWithUncertainty(const Value &value, double expanded)
{
    const ShownUnit unit = shownUnitOf(value);
    const int decimals = decimalsOf(expanded / unit.size);
    return QStringLiteral("%1%2 %3").arg(marked(value, rounded(value.number / unit.size, decimals)),
                                         unit.suffix, uncertaintyText(value, expanded));
}

QString uncertaintyText(const Value &value, double expanded)
{
    const ShownUnit unit = shownUnitOf(value);
    const double shown = expanded / unit.size;
    return QStringLiteral("± %1%2").arg(marked(value, rounded(shown, decimalsOf(shown))),
                                        unit.suffix);
}

Value inTableUnit(Value value)
{
    const ShownUnit shown = shownUnitOf(value);
    if (shown.tableSuffix != shown.suffix) {
        const ShownUnit table = shownUnitOf(shown.tableSuffix, value.unit);
        value.text =
            marked(value, rounded(value.number / table.size, shown.tableDecimals)) + table.suffix;
    }
    return value;
}

} // namespace Drevon::Zalento::Measuring
