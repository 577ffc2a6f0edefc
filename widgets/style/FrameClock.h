// SPDX-License-Identifier: MIT
#pragma once

#include <QAnimationDriver>
#include <QTimer>

#include <chrono>

namespace lumora
{

/// Lets every animation of the program take its steps at a frame's distance, the first one included; the platform's own
/// pace is a little slower than the frames of most screens. Install one for as long as the event loop runs. Ticks only
/// while something is animated.
class FrameClock final : public QAnimationDriver
{
public:
    /// What fades in from nothing has its first visible value, 1/256, after 11.4 ms; one frame of 60 a second has not
    /// passed at that time, with time to spare for drawing it.
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
