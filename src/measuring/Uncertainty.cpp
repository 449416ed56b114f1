#include "measuring/Uncertainty.h"

#include "measuring/Editing.h"
#include "measuring/Measurement.h"
#include "measuring/MeasuringModel.h"
#include "measuring/UncertaintyFactors.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <random>
#include <vector>

namespace Drevon::Zalento::Measuring {

namespace {

constexpr int fullDraws = 10000;
constexpr int checkDraws = 2000;
constexpr std::uint64_t seed = 1;

// The step of a difference quotient, in standard deviations of a factor.
constexpr double step = 0.01;

// An interval of 95 percent leaves out 2.5 percent on both sides; a normal distribution's has this
// many standard deviations to a side.
constexpr double tail = 0.025;
constexpr double normalReach = 1.959964;

// Draws that measure nothing: with more than these no interval can be told.
constexpr double largestLostShare = tail;

// A smaller share of the variance is what difference quotients leave of nothing.
constexpr double smallestShare = 1e-12;

// Beyond JCGM 101: the two standard uncertainties themselves differ by no more.
constexpr double largestDifference = 0.1;

constexpr std::array<const char *, 8> sourceNames{"clicks",      "pixels", "alignment", "diameter",
                                                  "fieldOfView", "laser",  "scale",     "setting"};

struct Propagation
{
    MeasuringModel model;
    std::vector<UncertaintyFactor> factors;
    Eigen::VectorXd values;
};

// What a factor's standard deviation does to each value.
Eigen::VectorXd effectOf(const Propagation &given, const UncertaintyFactor &factor)
{
    const Eigen::VectorXd shift = factor.shift * step;
    return (given.model.values(given.model.inputs() + shift) -
            given.model.values(given.model.inputs() - shift)) /
           (2 * step);
}

// A row a value, a column a factor.
Eigen::MatrixXd effectsOf(const Propagation &given)
{
    Eigen::MatrixXd effects(given.values.size(), static_cast<Eigen::Index>(given.factors.size()));
    for (std::size_t i = 0; i < given.factors.size(); ++i) {
        effects.col(static_cast<Eigen::Index>(i)) = effectOf(given, given.factors[i]);
    }
    return effects;
}

QVector<BudgetRow> budgetOf(const Propagation &given, const Eigen::VectorXd &effects)
{
    std::array<double, sourceNames.size()> variances{};
    for (std::size_t i = 0; i < given.factors.size(); ++i) {
        const double effect = effects[static_cast<Eigen::Index>(i)];
        variances[static_cast<std::size_t>(given.factors[i].source)] += effect * effect;
    }
    QVector<BudgetRow> budget;
    for (std::size_t i = 0; i < variances.size(); ++i) {
        const double share = variances[i] / effects.squaredNorm();
        if (share > smallestShare) {
            budget.append({static_cast<UncertaintySource>(i), std::sqrt(variances[i]), share});
        }
    }
    std::stable_sort(budget.begin(), budget.end(),
                     [](const BudgetRow &a, const BudgetRow &b) { return a.share > b.share; });
    return budget;
}

double normalShareBelow(double limit, double mean, double deviation)
{
    return 0.5 * std::erfc((mean - limit) / (deviation * std::sqrt(2.0)));
}

std::optional<Uncertainty> firstOrder(const Propagation &given, const Eigen::VectorXd &effects)
{
    Uncertainty result;
    result.standard = effects.norm();
    if (!std::isfinite(result.standard)) {
        return std::nullopt;
    }
    result.budget = budgetOf(given, effects);
    return result;
}

// The values of each draw, a column a draw (JCGM 101, 7.3 and 7.4).
Eigen::MatrixXd drawnValues(const Propagation &given, int draws)
{
    std::mt19937_64 random(seed);
    std::normal_distribution<double> normal;
    std::uniform_real_distribution<double> uniform(-std::sqrt(3.0), std::sqrt(3.0));
    Eigen::MatrixXd result(given.values.size(), draws);
    Eigen::VectorXd inputs;
    for (Eigen::Index i = 0; i < draws; ++i) {
        inputs = given.model.inputs();
        for (const UncertaintyFactor &factor : given.factors) {
            const bool isNormal = factor.distribution == Distribution::Normal;
            inputs += factor.shift * (isNormal ? normal(random) : uniform(random));
        }
        result.col(i) = given.model.values(inputs);
    }
    return result;
}

// One value's draws.
class Sample
{
public:
    explicit Sample(const Eigen::VectorXd &draws)
    {
        std::copy_if(draws.data(), draws.data() + draws.size(), std::back_inserter(m_sorted),
                     [](double value) { return std::isfinite(value); });
        std::sort(m_sorted.begin(), m_sorted.end());
        const auto lost = static_cast<double>(draws.size()) - size();
        m_isUsable = lost <= largestLostShare * static_cast<double>(draws.size());
    }

    bool isUsable() const { return m_isUsable; }
    double size() const { return static_cast<double>(m_sorted.size()); }

    double deviation() const
    {
        const Eigen::Map<const Eigen::ArrayXd> all(m_sorted.data(),
                                                   static_cast<Eigen::Index>(m_sorted.size()));
        return std::sqrt((all - all.mean()).square().sum() / (size() - 1.0));
    }

    // The same share left out on both sides (JCGM 101, 7.7).
    std::pair<double, double> interval() const
    {
        const auto left = static_cast<std::size_t>(size() * tail);
        return {m_sorted[left], m_sorted[m_sorted.size() - 1 - left]};
    }

    double shareBelow(double limit) const
    {
        const auto first = std::lower_bound(m_sorted.begin(), m_sorted.end(), limit);
        return static_cast<double>(first - m_sorted.begin()) / size();
    }

private:
    std::vector<double> m_sorted;
    bool m_isUsable = false;
};

// Half a unit of the only digit that the standard uncertainty is told with (JCGM 101, 7.9.2).
double numericalTolerance(double standard)
{
    return 0.5 * std::pow(10.0, std::floor(std::log10(standard)));
}

// How far an end of the sample's interval is off by chance, two standard deviations: those of a
// quantile, for a normal distribution.
double chance(const Sample &sample, double standard)
{
    const double density = std::exp(-normalReach * normalReach / 2) / std::sqrt(2 * M_PI);
    return 2 * standard * std::sqrt(tail * (1 - tail) / sample.size()) / density;
}

// JCGM 101, 8.1: the ends of the two intervals differ by no more than the numerical tolerance. A
// tenth of the way to them is the most that passes.
bool holds(const Uncertainty &uncertainty, double value, const Sample &sample)
{
    const double u = uncertainty.standard;
    if (u == 0.0) {
        return true;
    }
    if (!sample.isUsable() || std::abs(sample.deviation() - u) > largestDifference * u) {
        return false;
    }
    const double tolerance =
        std::min(numericalTolerance(u), largestDifference * normalReach * u) + chance(sample, u);
    const auto [low, high] = sample.interval();
    return std::abs(value - normalReach * u - low) <= tolerance &&
           std::abs(value + normalReach * u - high) <= tolerance;
}

std::optional<Uncertainty> monteCarlo(const std::optional<Uncertainty> &first, const Sample &sample)
{
    if (!sample.isUsable()) {
        return std::nullopt;
    }
    Uncertainty result = first.value_or(Uncertainty());
    result.standard = sample.deviation();
    result.method = UncertaintyMethod::MonteCarlo;
    result.interval = sample.interval();
    return result;
}

bool allHold(const Propagation &given, const QVector<std::optional<Uncertainty>> &results)
{
    const Eigen::MatrixXd draws = drawnValues(given, checkDraws);
    for (int i = 0; i < results.size(); ++i) {
        if (!results[i] || !holds(*results[i], given.values[i], Sample(draws.row(i)))) {
            return false;
        }
    }
    return true;
}

Decision decisionOn(double limit, double value, const Uncertainty &uncertainty,
                    const std::optional<Sample> &sample)
{
    return decisionFor(sample ? sample->shareBelow(limit)
                              : normalShareBelow(limit, value, uncertainty.standard));
}

// One value's uncertainty; drawn where there is a sample.
std::optional<Uncertainty> finished(const std::optional<Uncertainty> &first,
                                    const std::optional<Sample> &sample, const Value &value,
                                    const std::optional<Limit> &limit)
{
    std::optional<Uncertainty> result = sample ? monteCarlo(first, *sample) : first;
    if (result && limit && limit->unit == value.unit) {
        result->decision = decisionOn(limit->number, value.number, *result, sample);
    }
    return result;
}

QVector<std::optional<Uncertainty>> propagated(const Propagation &given, UncertaintyEffort effort,
                                               const QVector<Value> &values,
                                               const std::optional<Limit> &limit)
{
    const Eigen::MatrixXd effects = effectsOf(given);
    QVector<std::optional<Uncertainty>> first;
    for (Eigen::Index i = 0; i < given.values.size(); ++i) {
        first += firstOrder(given, effects.row(i));
    }
    const bool isDrawn = effort == UncertaintyEffort::MonteCarlo ||
                         (effort == UncertaintyEffort::Checked && !allHold(given, first));
    const Eigen::MatrixXd draws = isDrawn ? drawnValues(given, fullDraws) : Eigen::MatrixXd();
    QVector<std::optional<Uncertainty>> results;
    for (int i = 0; i < first.size(); ++i) {
        const auto sample = isDrawn ? std::optional<Sample>(draws.row(i)) : std::nullopt;
        results += finished(first.at(i), sample, values.at(i), limit);
    }
    return results;
}

} // namespace

QString uncertaintySourceName(UncertaintySource source)
{
    return QLatin1String(sourceNames[static_cast<std::size_t>(source)]);
}

QString uncertaintyMethodName(UncertaintyMethod method)
{
    return method == UncertaintyMethod::FirstOrder ? QStringLiteral("first-order")
                                                   : QStringLiteral("monte-carlo");
}

QVector<std::optional<Uncertainty>> uncertaintiesOf(const Session &session,
                                                    const std::optional<AlignmentFit> &fit,
                                                    UncertaintyEffort effort)
{
    Session placed = session;
    placePoints(placed);
    const Measurement measurement = measure(placed);
    if (measurement.state != MeasureState::Measured) {
        return {};
    }
    const MeasuringModel model(placed);
    const Propagation given{model, uncertaintyFactors(placed, fit, model),
                            model.values(model.inputs())};
    const Result<Limit> limit = limitFromText(session.limit);
    return propagated(given, effort, measurement.values,
                      limit ? std::optional<Limit>(*limit) : std::nullopt);
}

} // namespace Drevon::Zalento::Measuring
