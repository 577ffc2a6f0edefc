// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <new>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace lumora
{

/// Threads that share work with their owner, who waits for them when the group is destroyed. A system that is out of
/// threads, or of memory for their stacks, refuses further ones: the work is then left to those that run.
class ThreadGroup
{
public:
    /// Runs `work` on a thread of its own; returns whether the system gave one.
    template <typename Work> bool start(Work work)
    {
        try {
            m_threads.emplace_back(std::move(work));
        } catch (const std::system_error &) {
            return false;
        } catch (const std::bad_alloc &) {
            return false;
        }
        return true;
    }

    /// Starts up to `count` threads that do the same work.
    template <typename Work> void start(std::size_t count, const Work &work)
    {
        for (std::size_t i = 0; i < count && start(Work(work)); ++i) {
        }
    }

    bool isEmpty() const { return m_threads.empty(); }

    /// Waits until the work of all threads has ended.
    void join() { m_threads.clear(); }

private:
    std::vector<std::jthread> m_threads;
};

} // namespace lumora
