// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QTextStream>
#include <QTimer>

#include <algorithm>
#include <array>
#include <vector>

#include <time.h>

namespace lumora
{

inline double milliseconds(qint64 nanoseconds)
{
    return static_cast<double>(nanoseconds) / 1e6;
}

/// A timer that should fire every millisecond; its delay is the time in which the event loop could not handle input.
class Heartbeat final : public QObject
{
public:
    Heartbeat()
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        m_timer.setInterval(1);
        connect(&m_timer, &QTimer::timeout, this, [this] { beat(); });
        m_clock.start();
        m_timer.start();
    }

    void print(QTextStream &out) const
    {
        static constexpr std::array<double, 7> limits = {2, 4, 8, 16, 30, 60, 1e9};
        std::array<int, limits.size()> counts{};
        for (const qint64 gap : m_gaps) {
            const auto place =
                std::find_if(limits.begin(), limits.end(), [gap](double limit) { return milliseconds(gap) <= limit; });
            ++counts.at(static_cast<std::size_t>(place - limits.begin()));
        }
        for (std::size_t bucket = 0; bucket < limits.size(); ++bucket) {
            const bool last = bucket + 1 == limits.size();
            out << "  " << (last ? QStringLiteral("above 60") : QStringLiteral("to %1").arg(limits.at(bucket)))
                << " ms: " << counts.at(bucket) << '\n';
        }
        out << "  longest " << milliseconds(*std::max_element(m_gaps.begin(), m_gaps.end()))
            << " ms; most processor time of this thread in one gap " << milliseconds(m_longestWork) << " ms\n";
    }

private:
    /// The thread's own processor time so far, in nanoseconds.
    static qint64 work()
    {
        timespec used = {};
        ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &used);
        return qint64{used.tv_sec} * 1'000'000'000 + used.tv_nsec;
    }

    void beat()
    {
        m_gaps.push_back(m_clock.nsecsElapsed());
        m_clock.restart();
        const qint64 now = work();
        m_longestWork = std::max(m_longestWork, now - m_workBefore);
        m_workBefore = now;
    }

    QTimer m_timer;
    QElapsedTimer m_clock;
    std::vector<qint64> m_gaps;
    qint64 m_workBefore = work();
    qint64 m_longestWork = 0;
};

} // namespace lumora
