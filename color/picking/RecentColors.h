// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/RgbaColor.h"

#include <vector>

namespace lumora
{

/// The colors used last in this run of the program, the newest first.
class RecentColors
{
public:
    /// As many as are remembered: what the picker shows without scrolling.
    static constexpr std::size_t capacity = 40;

    const std::vector<RgbaColor> &colors() const { return m_colors; }
    /// Puts the color in front; one that shows the same bytes moves there instead of standing twice. The oldest go
    /// when there are too many.
    void add(const RgbaColor &color);

private:
    std::vector<RgbaColor> m_colors;
};

} // namespace lumora
