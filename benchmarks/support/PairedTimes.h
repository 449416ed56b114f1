#pragma once

#include <algorithm>
#include <ctime>
#include <functional>
#include <vector>

namespace Drevon::Zalento::Benchmarks {

/** Processor time of this thread in seconds; other programs on the machine don't add to it. */
inline double threadSeconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + 1e-9 * static_cast<double>(now.tv_nsec);
}

/**
 * Times of two actions that run in turns, so that a busy machine slows both alike. Medians, because
 * interruptions only ever add.
 */
class PairedTimes
{
public:
    /** Runs both, each first every other time: the second one finds warm caches. */
    void run(const std::function<void()> &ours, const std::function<void()> &bare)
    {
        const bool oursFirst = m_ours.size() % 2 == 0;
        const double first = secondsOf(oursFirst ? ours : bare);
        const double second = secondsOf(oursFirst ? bare : ours);
        m_ours.push_back(oursFirst ? first : second);
        m_bare.push_back(oursFirst ? second : first);
    }

    double lastOurs() const { return m_ours.back(); }
    double ours() const { return median(m_ours); }
    double bare() const { return median(m_bare); }
    double ratio() const { return ours() / bare(); }

private:
    static double secondsOf(const std::function<void()> &action)
    {
        const double start = threadSeconds();
        action();
        return threadSeconds() - start;
    }

    static double median(std::vector<double> values)
    {
        const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
        std::nth_element(values.begin(), middle, values.end());
        return *middle;
    }

    std::vector<double> m_ours;
    std::vector<double> m_bare;
};

} // namespace Drevon::Zalento::Benchmarks
