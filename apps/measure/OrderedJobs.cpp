#include "measure/OrderedJobs.h"

#include <algorithm>
#include <system_error>

namespace Drevon::Zalento::Apps {

namespace {

// A slow one lets the others go on this far, a job, while their results wait in memory.
constexpr int largestLead = 8;

} // namespace

void OrderedJobs::run(int count, const NumberedTask &work, const NumberedTask &finish)
{
    m_count = count;
    m_next = 0;
    m_finished = 0;
    m_isWorkedOn.assign(static_cast<std::size_t>(count), false);
    m_caller = std::this_thread::get_id();
    std::vector<std::thread> workers = startWorkers(work);
    if (workers.empty()) {
        runOneByOne(work, finish);
        return;
    }
    finishAll(finish);
    for (std::thread &worker : workers) {
        worker.join();
    }
}

// Where the system has no thread left, those that there are do the work.
std::vector<std::thread> OrderedJobs::startWorkers(const NumberedTask &work)
{
    std::vector<std::thread> workers;
    const int wanted = m_jobs == 1 ? 0 : std::min(m_jobs, m_count);
    try {
        while (static_cast<int>(workers.size()) < wanted) {
            workers.emplace_back([this, &work] { workUntilNoneIsLeft(work); });
        }
    } catch (const std::system_error &) {
    }
    return workers;
}

void OrderedJobs::runOneByOne(const NumberedTask &work, const NumberedTask &finish) const
{
    for (int number = 0; number < m_count; ++number) {
        work(number);
        finish(number);
    }
}

void OrderedJobs::onCallersThread(const Task &task)
{
    if (std::this_thread::get_id() == m_caller) {
        task();
        return;
    }
    std::packaged_task<void()> call(task);
    std::future<void> done = call.get_future();
    {
        const std::lock_guard lock(m_mutex);
        m_calls.push_back(std::move(call));
    }
    m_changed.notify_all();
    done.get();
}

void OrderedJobs::workUntilNoneIsLeft(const NumberedTask &work)
{
    for (int number = takeNumber(); number < m_count; number = takeNumber()) {
        work(number);
        {
            const std::lock_guard lock(m_mutex);
            m_isWorkedOn[static_cast<std::size_t>(number)] = true;
        }
        m_changed.notify_all();
    }
}

int OrderedJobs::takeNumber()
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(
        lock, [this] { return m_next >= m_count || m_next - m_finished < largestLead * m_jobs; });
    return m_next++;
}

void OrderedJobs::finishAll(const NumberedTask &finish)
{
    std::unique_lock lock(m_mutex);
    const auto isNextDone = [this] { return m_isWorkedOn[static_cast<std::size_t>(m_finished)]; };
    while (m_finished < m_count) {
        m_changed.wait(lock, [&] { return !m_calls.empty() || isNextDone(); });
        if (!m_calls.empty()) {
            std::packaged_task<void()> call = std::move(m_calls.front());
            m_calls.pop_front();
            lock.unlock();
            call();
            lock.lock();
            continue;
        }
        lock.unlock();
        finish(m_finished);
        lock.lock();
        ++m_finished;
        m_changed.notify_all();
    }
}

} // namespace Drevon::Zalento::Apps
