#include "measuring/Repeats.h"

#include "measuring/Count.h"

#include <cmath>

namespace Drevon::Zalento::Measuring {

bool measureAgain(Session &session)
{
    const Measurement measurement = measure(session);
    if (measurement.state != MeasureState::Measured) {
        return false;
    }
    QMap<QString, double> result;
    for (const Value &value : measurement.values) {
        result.insert(value.name, value.number);
    }
    session.repeats += result;
    session.points.clear();
    session.isSet = !infoOf(session.kind).has(Uses::SetByEye);
    return true;
}

std::optional<RepeatStatistics> repeatStatistics(const Session &session, const Value &value)
{
    QVector<double> numbers{value.number};
    for (const QMap<QString, double> &result : session.repeats) {
        if (result.contains(value.name)) {
            numbers += result.value(value.name);
        }
    }
    if (numbers.size() < 2) {
        return std::nullopt;
    }
    RepeatStatistics statistics;
    statistics.count = countOf(numbers);
    for (const double number : numbers) {
        statistics.mean += number / statistics.count;
    }
    double squares = 0.0;
    for (const double number : numbers) {
        squares += (number - statistics.mean) * (number - statistics.mean);
    }
    statistics.standardDeviation = std::sqrt(squares / (statistics.count - 1));
    statistics.standardDeviationOfMean =
        statistics.standardDeviation / std::sqrt(static_cast<double>(statistics.count));
    return statistics;
}

} // namespace Drevon::Zalento::Measuring
