// SPDX-License-Identifier: MIT
#pragma once

#include <QAnimationDriver>
#include <QCoreApplication>
#include <QVariantAnimation>

namespace lumora::testing
{

/// Time that passes for all animations of this thread only when the test advances it.
class DrivenClock final : public QAnimationDriver
{
public:
    DrivenClock()
    {
        install();
        // While nothing is animated, Qt uses the real clock, and a first animation would begin with the time that a
        // busy machine takes before its first step.
        m_alwaysRunning.setStartValue(0);
        m_alwaysRunning.setEndValue(1);
        m_alwaysRunning.setLoopCount(-1);
        m_alwaysRunning.start();
        QCoreApplication::processEvents();
        // Applies the time that has passed until now.
        pass(0);
    }
    ~DrivenClock() override
    {
        m_alwaysRunning.stop();
        uninstall();
    }
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
    QVariantAnimation m_alwaysRunning;
};

} // namespace lumora::testing
