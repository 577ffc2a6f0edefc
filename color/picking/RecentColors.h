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
    /// The number of colors that are remembered: as many as the picker shows without scrolling.
    static constexpr std::size_t capacity = 40;

    const std::vector<RgbaColor> &colors() const { return m_colors; }
    /// Puts the color in front; if a color with the same bytes is in the list, it moves to the front instead. Drops the
    /// oldest when there are too many.
    void add(const RgbaColor &color);

private:
    std::vector<RgbaColor> m_colors;
};

} // namespace lumora
