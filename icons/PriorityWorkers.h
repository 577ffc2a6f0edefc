// SPDX-License-Identifier: MIT
#pragma once

#include <condition_variable>
#include <functional>
#include <map>
#include <mutex>
#include <thread>
#include <vector>

namespace lumora
{

/// Threads, at most one a core, that do work in order of its priority, the highest first. Where the system gives no
/// thread, the work is left to the waiting caller: see `doOneAlone`.
///
/// The work passes between threads under a lock of the standard library, which the thread sanitizer sees without an
/// instrumented Qt.
class PriorityWorkers
{
public:
    PriorityWorkers() = default;
    /// Drops the work that is not begun; waits for the work that is.
    ~PriorityWorkers();
    PriorityWorkers(const PriorityWorkers &) = delete;
    PriorityWorkers &operator=(const PriorityWorkers &) = delete;

    /// Queues the work. Returns false, with nothing queued, if there is no memory for it. The work throws nothing.
    bool start(std::function<void()> work, int priority);
    /// Does the first waiting work on the calling thread if there is no thread to do it. Returns false if there is one,
    /// or no work.
    bool doOneAlone();

private:
    void addThread();
    void work();
    std::function<void()> takeFirst();

    std::mutex m_mutex; ///< guards everything below
    std::condition_variable m_changed;
    std::multimap<int, std::function<void()>, std::greater<>> m_waiting;
    std::vector<std::thread> m_threads;
    std::size_t m_idle = 0; ///< threads that wait for work
    bool m_ends = false;
};

} // namespace lumora
