// SPDX-License-Identifier: MIT
#pragma once

#include <QAnimationDriver>
#include <QTimer>

#include <chrono>

namespace lumora
{

/// Makes every animation of the program step once per frame, from the first frame on; the platform's own interval is a
/// little longer than a frame of most screens. Install one clock for the time that the event loop runs. It ticks only
/// while something is animated.
class FrameClock final : public QAnimationDriver
{
public:
    /// A fade-in reaches its first visible value, 1/256, after 11.4 ms; that is before the end of a frame at 60 Hz and
    /// leaves time for drawing it.
    static constexpr std::chrono::milliseconds interval{12};

    FrameClock();
    ~FrameClock() override;
    FrameClock(const FrameClock &) = delete;
    FrameClock &operator=(const FrameClock &) = delete;

protected:
    void start() override;
    void stop() override;

private:
    QTimer m_timer;
};

} // namespace lumora
