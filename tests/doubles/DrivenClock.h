// SPDX-License-Identifier: MIT
#pragma once

#include <QAnimationDriver>
#include <QCoreApplication>
#include <QVariantAnimation>

namespace lumora::testing
{

/// Time that passes for every animation of this thread only when a test says so.
class DrivenClock final : public QAnimationDriver
{
public:
    DrivenClock()
    {
        install();
        // While nothing is animated Qt goes by the real clock, and a first animation would begin with what a busy
        // machine let pass before its first step.
        m_alwaysRunning.setStartValue(0);
        m_alwaysRunning.setEndValue(1);
        m_alwaysRunning.setLoopCount(-1);
        m_alwaysRunning.start();
        QCoreApplication::processEvents();
        // Takes up what passed until now.
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
