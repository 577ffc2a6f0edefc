// SPDX-License-Identifier: MIT
#pragma once

#include "tool/TimedCaption.h"

#include <QCoreApplication>
#include <QTimerEvent>

namespace lumora
{

inline QTimer &timerOf(const TimedCaption &caption)
{
    return *caption.findChild<QTimer *>();
}

/// Ends at once the time after which a waiting caption returns to rest. Does nothing to a caption that does not wait.
inline void letTimePass(const TimedCaption &caption)
{
    QTimer &timer = timerOf(caption);
    if (!timer.isActive())
        return;
    QTimerEvent out(timer.timerId());
    QCoreApplication::sendEvent(&timer, &out);
}

} // namespace lumora
