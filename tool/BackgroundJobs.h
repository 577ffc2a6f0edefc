// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <condition_variable>
#include <deque>
#include <functional>
#include <list>
#include <mutex>
#include <string>
#include <thread>

namespace lumora
{

class BackgroundJobs;

/// What a running job has of the outside. Used on the job's own thread only.
class BackgroundJob
{
public:
    /// Runs the function on the main thread, soon, in the order of the posts; not at all once the controller's
    /// BackgroundJobs is being destroyed. Returns at once: a job never waits for the main thread.
    void post(std::function<void()> onMainThread) const;
    /// The window is closing. A job that only reads may return early; one that writes files goes on to the end.
    bool isStopRequested() const;

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
/// A job copies the values it needs into its closure and reaches nothing else; `this` stands in the closure for the
/// posted functions only. Being destroyed waits for the jobs that were begun, so that no file is left half-written, and
/// drops those of a serial row whose turn has not come and whatever was posted and not yet run: make the BackgroundJobs
/// the controller's last member, so that it goes first. Made, used and destroyed on the main thread.
class BackgroundJobs final : public QObject
{
    Q_OBJECT

public:
    enum class Order {
        Concurrent, ///< every job starts at once, on a thread of its own
        Serial,     ///< one after another
    };
    using Work = std::function<void(const BackgroundJob &job)>;

    /// The label names the jobs' threads for those who look at the process from outside; at most 15 characters, empty
    /// for the program's own name.
    explicit BackgroundJobs(Order order = Order::Concurrent, const std::string &label = {});
    ~BackgroundJobs() override;

    void start(Work work);
    /// Waits until every job has returned; what they posted runs with the next round of the event loop.
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
    // The standard library's locks, not the toolkit's: a thread sanitizer sees through them without a build of its own.
    mutable std::mutex m_mutex; ///< guards everything below
    std::condition_variable m_workerFinished;
    std::deque<Work> m_waiting;
    std::deque<std::function<void()>> m_posted;
    std::list<Worker> m_workers;
    int m_running = 0;
    bool m_stopRequested = false;
};

} // namespace lumora
