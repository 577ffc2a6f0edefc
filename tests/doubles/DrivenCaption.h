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

/// Lets the time run out after which a caption that waits for it returns to rest; at once, and not for one that does
/// not wait.
inline void letTimePass(const TimedCaption &caption)
{
    QTimer &timer = timerOf(caption);
    if (!timer.isActive())
        return;
    QTimerEvent out(timer.timerId());
    QCoreApplication::sendEvent(&timer, &out);
}

} // namespace lumora
