#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <future>
#include <mutex>
#include <thread>
#include <vector>

namespace Drevon::Zalento::Apps {

/**
 * Works on numbered things at the same time, and finishes them one after the other.
 *
 * The caller's thread finishes, and meanwhile runs what the others may not do by themselves. Its
 * primitives are those of the standard library, which a checker for data races knows.
 */
class OrderedJobs
{
public:
    using Task = std::function<void()>;
    using NumberedTask = std::function<void(int number)>;

    /** @param jobs how many are worked on at a time; 1 works on the caller's thread */
    explicit OrderedJobs(int jobs)
        : m_jobs(jobs)
    {}

    /**
     * Calls @p work for each number from 0 to below @p count, in any thread; and after it
     * @p finish, on the caller's thread and in the order of the numbers.
     */
    void run(int count, const NumberedTask &work, const NumberedTask &finish);

    /** For @p work: runs @p task on the thread that called run(), and waits for it. */
    void onCallersThread(const Task &task);

private:
    std::vector<std::thread> startWorkers(const NumberedTask &work);
    void runOneByOne(const NumberedTask &work, const NumberedTask &finish) const;
    void workUntilNoneIsLeft(const NumberedTask &work);
    void finishAll(const NumberedTask &finish);
    int takeNumber();

    const int m_jobs;
    int m_count = 0;
    std::thread::id m_caller;
    std::mutex m_mutex; // of what follows
    std::condition_variable m_changed;
    std::deque<std::packaged_task<void()>> m_calls; // for the caller's thread
    std::vector<bool> m_isWorkedOn;
    int m_next = 0;     // to be worked on
    int m_finished = 0; // numbers below it are
};

} // namespace Drevon::Zalento::Apps
