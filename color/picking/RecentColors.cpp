// SPDX-License-Identifier: MIT
#include "RecentColors.h"

#include "color/ColorCode.h"

namespace lumora
{

namespace
{

bool looksLike(const RgbaColor &one, const RgbaColor &other)
{
    return stringFromColor(one) == stringFromColor(other) && componentByte(one.alpha) == componentByte(other.alpha);
}

} // namespace

void RecentColors::add(const RgbaColor &color)
{
    std::erase_if(m_colors, [&](const RgbaColor &known) { return looksLike(known, color); });
    m_colors.insert(m_colors.begin(), color);
    if (m_colors.size() > capacity)
        m_colors.resize(capacity);
}

} // namespace lumora
