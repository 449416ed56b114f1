#include "measuring/Limit.h"

#include "measuring/Text.h"

#include <QRegularExpression>
#include <QStringList>

#include <array>
#include <cmath>

namespace Drevon::Zalento::Measuring {

namespace {

struct UnitRow
{
    const char *names; ///< separated by spaces
    const char *unit;
    double factor;
};

constexpr double mmPerInch = 25.4;
constexpr double mmPerFoot = 12 * mmPerInch;

constexpr std::array<UnitRow, 12> unitRows{{
    {"mm", "mm", 1.0},
    {"cm", "mm", 10.0},
    {"m", "mm", 1000.0},
    {"in inch '' \"", "mm", mmPerInch},
    {"ft '", "mm", mmPerFoot},
    {"mm² mm2", "mm²", 1.0},
    {"cm² cm2", "mm²", 100.0},
    {"m² m2", "mm²", 1e6},
    {"in² in2 inch² inch2", "mm²", mmPerInch *mmPerInch},
    {"ft² ft2", "mm²", mmPerFoot *mmPerFoot},
    {"%", "%", 1.0},
    {"deg °", "deg", 1.0},
}};

Problem problemOf(const QString &text)
{
    return {
        QStringLiteral("limit"),
        Text::tr("expected a limit such as \"< 0.5 mm\" or \"> 20 %\", found \"%1\"").arg(text)};
}

} // namespace

Result<Limit> limitFromText(const QString &text)
{
    static const QRegularExpression pattern(
        QStringLiteral("\\A\\s*[<>]=?\\s*([0-9]+(?:[.,][0-9]+)?)\\s*(\\S+)\\s*\\z"));
    const auto match = pattern.match(text);
    if (!match.hasMatch()) {
        return problemOf(text);
    }
    const double number = match.captured(1).replace(QLatin1Char(','), QLatin1Char('.')).toDouble();
    for (const UnitRow &row : unitRows) {
        const QStringList names = QString::fromUtf8(row.names).split(QLatin1Char(' '));
        if (names.contains(match.captured(2)) && std::isfinite(number)) {
            return Limit{number * row.factor, QString::fromUtf8(row.unit)};
        }
    }
    return problemOf(text);
}

QString decisionText(Decision decision)
{
    switch (decision) {
    case Decision::Below:
        return QStringLiteral("below");
    case Decision::Above:
        return QStringLiteral("above");
    case Decision::Undecided:
        break;
    }
    return QStringLiteral("cannot be decided at 95 %");
}

Decision decisionFor(double probabilityBelow)
{
    if (probabilityBelow >= decisionProbability) {
        return Decision::Below;
    }
    return probabilityBelow <= 1.0 - decisionProbability ? Decision::Above : Decision::Undecided;
}

} // namespace Drevon::Zalento::Measuring
