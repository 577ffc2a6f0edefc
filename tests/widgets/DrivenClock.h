// SPDX-License-Identifier: MIT
#pragma once

#include <QAnimationDriver>

namespace lumora::testing
{

/// Time that passes for every animation of this thread only when a test says so.
class DrivenClock final : public QAnimationDriver
{
public:
    DrivenClock() { install(); }
    ~DrivenClock() override { uninstall(); }
    DrivenClock(const DrivenClock &) = delete;
    DrivenClock &operator=(const DrivenClock &) = delete;

    qint64 elapsed() const override { return m_now; }
    void pass(int milliseconds)
    {
        m_now += milliseconds;
        advanceAnimation();
    }

private:
    qint64 m_now = 0;
};

} // namespace lumora::testing
