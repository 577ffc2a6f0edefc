// SPDX-License-Identifier: MIT
#pragma once

#include <thread>

namespace lumora
{

/// Reads the system's font configuration on a thread of its own. Apart from connecting to the display this is the
/// slowest part of the window's start, so both run at the same time.
class FontPreparation final
{
public:
    FontPreparation();
    /// Waits until the configuration is read.
    ~FontPreparation();
    FontPreparation(const FontPreparation &) = delete;
    FontPreparation &operator=(const FontPreparation &) = delete;

    /// Call this before using the first font, which would otherwise read everything again.
    void wait();

private:
    std::thread m_thread;
};

} // namespace lumora
