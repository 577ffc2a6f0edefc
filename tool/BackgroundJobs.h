// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <chrono>
#include <functional>
#include <memory>
#include <stop_token>
#include <string>

namespace lumora
{

class BackgroundJobs;
struct BackgroundJobsQueue;

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
    friend struct BackgroundJobsQueue;
    explicit BackgroundJob(BackgroundJobsQueue &queue) : m_queue(queue) {}

    BackgroundJobsQueue &m_queue;
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
/// serial jobs that were not begun and posted functions that have not run. It abandons jobs that do nothing for
/// `patience`: a write to a share that never answers must not keep the program alive. An abandoned job continues if the
/// call returns after all, so its closure may refer to nothing that the controller owns. Make the BackgroundJobs the
/// controller's last member, so that it is destroyed first. Create, use and destroy it on the main thread.
class BackgroundJobs final : public QObject
{
    Q_OBJECT

public:
    enum class Order {
        Concurrent, ///< every job starts at once, on a thread of its own
        Serial,     ///< one after another
    };
    using Work = std::function<void(const BackgroundJob &job)>;

    /// The time without any work of the processor for a job after which the end of the program abandons it.
    static constexpr std::chrono::milliseconds patience{10000};

    /// The label names the jobs' threads in tools that list them; at most 15 characters, empty for the program's own
    /// name.
    explicit BackgroundJobs(Order order = Order::Concurrent, const std::string &label = {},
                            std::chrono::milliseconds endPatience = patience);
    ~BackgroundJobs() override;

    void start(Work work);

protected:
    bool event(QEvent *event) override;

private:
    void joinFinished();
    bool waitForEnd();

    const std::chrono::milliseconds m_endPatience;
    std::shared_ptr<BackgroundJobsQueue> m_queue; ///< shared with the jobs' threads
};

} // namespace lumora
