// SPDX-License-Identifier: MIT
#include "BackgroundJobs.h"

#include "JobPatience.h"
#include "foundation/Log.h"

#include <QCoreApplication>
#include <QEvent>

#include <condition_variable>
#include <ctime>
#include <deque>
#include <list>
#include <mutex>
#include <thread>
#include <utility>

#include <pthread.h>

namespace lumora
{

namespace
{

QEvent::Type postedEvent()
{
    static const int type = QEvent::registerEventType();
    return static_cast<QEvent::Type>(type);
}

std::chrono::nanoseconds processorTime(clockid_t clock)
{
    timespec time = {};
    if (::clock_gettime(clock, &time) != 0)
        return {};
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

/// The thread must not have ended.
std::chrono::nanoseconds processorTime(std::thread &thread)
{
    clockid_t clock = {};
    return ::pthread_getcpuclockid(thread.native_handle(), &clock) == 0 ? processorTime(clock)
                                                                        : std::chrono::nanoseconds();
}

} // namespace

/// What the jobs' threads share with the BackgroundJobs. It outlives the BackgroundJobs if a job is abandoned.
struct BackgroundJobsQueue
{
    struct Worker
    {
        std::thread thread;
        bool finished = false;
    };

    BackgroundJobsQueue(BackgroundJobs *receiver, BackgroundJobs::Order jobOrder, std::string name)
        : order(jobOrder), label(std::move(name)), jobs(receiver)
    {
    }

    void run(Worker &worker);
    /// The processor time of all jobs that run, and of the process.
    JobPatience::Work work();

    const BackgroundJobs::Order order;
    const std::string label;
    std::stop_source stop; ///< the window is closing
    // The standard library's locks, not the toolkit's: the thread sanitizer sees them without an instrumented toolkit.
    std::mutex mutex; ///< guards everything below
    std::condition_variable workerFinished;
    BackgroundJobs *jobs; ///< null once it is destroyed
    std::deque<BackgroundJobs::Work> waiting;
    std::deque<std::function<void()>> posted;
    std::list<Worker> workers;
    int running = 0;
};

void BackgroundJobsQueue::run(Worker &worker)
{
    if (!label.empty())
        ::pthread_setname_np(::pthread_self(), label.c_str());
    std::unique_lock lock(mutex);
    while (!waiting.empty()) {
        {
            const BackgroundJobs::Work job = std::move(waiting.front());
            waiting.pop_front();
            lock.unlock();
            job(BackgroundJob(*this));
        }
        lock.lock();
    }
    worker.finished = true;
    --running;
    workerFinished.notify_all();
}

JobPatience::Work BackgroundJobsQueue::work()
{
    JobPatience::Work work{{}, processorTime(CLOCK_PROCESS_CPUTIME_ID)};
    for (Worker &worker : workers) {
        if (!worker.finished)
            work.jobs += processorTime(worker.thread);
    }
    return work;
}

void BackgroundJob::post(std::function<void()> onMainThread) const
{
    const std::lock_guard lock(m_queue.mutex);
    if (m_queue.jobs == nullptr)
        return;
    m_queue.posted.push_back(std::move(onMainThread));
    QCoreApplication::postEvent(m_queue.jobs, new QEvent(postedEvent()));
}

std::stop_token BackgroundJob::stopToken() const
{
    return m_queue.stop.get_token();
}

BackgroundJobs::BackgroundJobs(Order order, const std::string &label, std::chrono::milliseconds endPatience)
    : m_endPatience(endPatience), m_queue(std::make_shared<BackgroundJobsQueue>(this, order, label))
{
    postedEvent();
}

BackgroundJobs::~BackgroundJobs()
{
    {
        // Before the stop: a job that ends for it must not let the next one begin.
        const std::lock_guard lock(m_queue->mutex);
        // A concurrent job counts as started even if its thread has not begun it yet.
        if (m_queue->order == Order::Serial)
            m_queue->waiting.clear();
    }
    m_queue->stop.request_stop();
    if (!waitForEnd())
        logLine(QStringLiteral("Ended while a file does not answer"));
    joinFinished();
    std::deque<std::function<void()>> posted;
    const std::lock_guard lock(m_queue->mutex);
    posted.swap(m_queue->posted);
}

void BackgroundJobs::start(Work work)
{
    joinFinished();
    const std::lock_guard lock(m_queue->mutex);
    m_queue->waiting.push_back(std::move(work));
    if (m_queue->order == Order::Serial && m_queue->running > 0)
        return;
    ++m_queue->running;
    BackgroundJobsQueue::Worker &worker = m_queue->workers.emplace_back();
    worker.thread = std::thread([queue = m_queue, &worker] { queue->run(worker); });
}

/// Waits for all jobs, or abandons those that do nothing for too long; returns whether all have ended.
bool BackgroundJobs::waitForEnd()
{
    using namespace std::chrono_literals;
    using Clock = std::chrono::steady_clock;

    std::unique_lock lock(m_queue->mutex);
    JobPatience waiting(m_endPatience, Clock::now(), m_queue->work());
    while (!m_queue->workerFinished.wait_for(lock, 100ms, [this] { return m_queue->running == 0; })) {
        if (!waiting.isOver(Clock::now(), m_queue->work()))
            continue;
        m_queue->jobs = nullptr;
        for (BackgroundJobsQueue::Worker &worker : m_queue->workers) {
            if (!worker.finished)
                worker.thread.detach();
        }
        return false;
    }
    m_queue->jobs = nullptr;
    return true;
}

bool BackgroundJobs::event(QEvent *event)
{
    if (event->type() != postedEvent())
        return QObject::event(event);
    std::function<void()> next;
    {
        const std::lock_guard lock(m_queue->mutex);
        if (m_queue->posted.empty())
            return true;
        next = std::move(m_queue->posted.front());
        m_queue->posted.pop_front();
    }
    next();
    return true;
}

void BackgroundJobs::joinFinished()
{
    std::list<BackgroundJobsQueue::Worker> finished;
    {
        const std::lock_guard lock(m_queue->mutex);
        for (auto worker = m_queue->workers.begin(); worker != m_queue->workers.end();) {
            const auto current = worker++;
            if (current->finished)
                finished.splice(finished.end(), m_queue->workers, current);
        }
    }
    for (BackgroundJobsQueue::Worker &worker : finished) {
        // An abandoned job may have ended meanwhile.
        if (worker.thread.joinable())
            worker.thread.join();
    }
}

} // namespace lumora
