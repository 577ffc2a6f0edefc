// SPDX-License-Identifier: MIT
#include "FrameClock.h"

namespace lumora
{

FrameClock::FrameClock()
{
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(interval);
    connect(&m_timer, &QTimer::timeout, this, &QAnimationDriver::advance);
    install();
}

FrameClock::~FrameClock()
{
    uninstall();
}

void FrameClock::start()
{
    QAnimationDriver::start();
    m_timer.start();
}

void FrameClock::stop()
{
    m_timer.stop();
    QAnimationDriver::stop();
}

} // namespace lumora
