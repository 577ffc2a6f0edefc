// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <condition_variable>
#include <deque>
#include <functional>
#include <list>
#include <mutex>
#include <stop_token>
#include <string>
#include <thread>

namespace lumora
{

class BackgroundJobs;

/// A running job's connection to the main thread. Used on the job's own thread only.
class BackgroundJob
{
public:
    /// Queues the function for the main thread, which runs posted functions in order, but none once the controller's
    /// BackgroundJobs is being destroyed. Returns at once: a job never waits for the main thread.
    void post(std::function<void()> onMainThread) const;
    /// The window is closing. A job that only reads may return early; a job that writes files continues to its end.
    bool isStopRequested() const { return stopToken().stop_requested(); }
    /// The same for what waits.
    std::stop_token stopToken() const;

private:
    friend class BackgroundJobs;
    explicit BackgroundJob(BackgroundJobs &jobs) : m_jobs(jobs) {}

    BackgroundJobs &m_jobs;
};

/// Work off the main thread for one controller.
///
///     m_jobs.start([this, folder, picture = m_icon](const BackgroundJob &job) {
///         // On the job's thread: only values that were copied.
///         const Result result = exportIcons(picture, folder);
///         // On the main thread:
///         job.post([this, result] { showResult(result); });
///     });
///
/// A job copies the values it needs into its closure and uses nothing else; the closure captures `this` only for the
/// posted functions. The destructor waits for the jobs that were begun, so that no file is left half-written. It drops
/// serial jobs that were not begun and posted functions that have not run. Make the BackgroundJobs the controller's
/// last member, so that it is destroyed first. Create, use and destroy it on the main thread.
class BackgroundJobs final : public QObject
{
    Q_OBJECT

public:
    enum class Order {
        Concurrent, ///< every job starts at once, on a thread of its own
        Serial,     ///< one after another
    };
    using Work = std::function<void(const BackgroundJob &job)>;

    /// The label names the jobs' threads in tools that list them; at most 15 characters, empty for the program's own
    /// name.
    explicit BackgroundJobs(Order order = Order::Concurrent, const std::string &label = {});
    ~BackgroundJobs() override;

    void start(Work work);
    /// Waits until every job has returned; their posted functions run when the event loop continues.
    void waitForDone();

protected:
    bool event(QEvent *event) override;

private:
    friend class BackgroundJob;
    struct Worker
    {
        std::thread thread;
        bool finished = false;
    };

    void run(Worker &worker);
    void joinFinished();

    const Order m_order;
    const std::string m_label;
    std::stop_source m_stop; ///< the window is closing
    // The standard library's locks, not the toolkit's: the thread sanitizer sees them without an instrumented toolkit.
    mutable std::mutex m_mutex; ///< guards everything below
    std::condition_variable m_workerFinished;
    std::deque<Work> m_waiting;
    std::deque<std::function<void()>> m_posted;
    std::list<Worker> m_workers;
    int m_running = 0;
};

} // namespace lumora
