// SPDX-License-Identifier: MIT
#pragma once

#include <thread>

namespace lumora
{

/// Reads the system's font configuration on a thread of its own. That takes longer than all the rest of a window's
/// start but its connection to the display, and the main thread has that to wait for meanwhile.
class FontPreparation final
{
public:
    FontPreparation();
    /// Waits until it is read.
    ~FontPreparation();
    FontPreparation(const FontPreparation &) = delete;
    FontPreparation &operator=(const FontPreparation &) = delete;

    /// To be called before the first font is used, which would read everything once more.
    void wait();

private:
    std::thread m_thread;
};

} // namespace lumora
