// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

namespace lumora
{

/// Decides when the end of the program gives jobs up: once nothing has worked for them for as long as the patience
/// lasts. Values in, values out: the caller reads the clocks.
class JobPatience
{
public:
    using TimePoint = std::chrono::steady_clock::time_point;

    /// Processor time that was used.
    struct Work
    {
        std::chrono::nanoseconds jobs = {};    ///< by the threads of the jobs
        std::chrono::nanoseconds process = {}; ///< by all threads, also those that jobs have started
    };

    JobPatience(std::chrono::milliseconds patience, TimePoint now, Work work)
        : m_patience(patience), m_lastSign(now), m_work(work)
    {
    }

    /// To be asked again and again; whether it is over.
    bool isOver(TimePoint now, Work work)
    {
        if (work.jobs != m_work.jobs || work.process - m_work.process >= workOfOtherThreads()) {
            m_work = work;
            m_lastSign = now;
        }
        return now - m_lastSign >= m_patience;
    }

private:
    /// The whole process uses at least this much processor time while a job's own threads work for the job; the rest
    /// of the program, which only waits, uses less within the patience. A hundredth, so that a thread that gets little
    /// of a loaded machine still counts.
    std::chrono::nanoseconds workOfOtherThreads() const { return m_patience / 100; }

    std::chrono::milliseconds m_patience;
    TimePoint m_lastSign;
    Work m_work; ///< at the last sign
};

} // namespace lumora
