// SPDX-License-Identifier: MIT
#include "PickedPalette.h"

#include "color/forms/ColorForm.h"
#include "color/picking/NamedColors.h"

#include <algorithm>

namespace lumora
{

namespace
{

/// The color's CSS name, or its code with eight digits.
QString nameOf(const WideColor &color)
{
    static const std::vector<NamedColor> named = webColors();
    const QString code = hex8Of(color);
    if (isClippedIn(color, RgbSpace::Srgb))
        return code;
    const auto found = std::ranges::find_if(named, [&code](const NamedColor &one) {
        return QString(platformColor(one.color).name() + QStringLiteral("ff")) == code;
    });
    return found == named.end() ? code : found->name;
}

/// The color as a file in any gamut writes it.
QString keyOf(const WideColor &color)
{
    return formText(*colorFormNamed(u"css-p3"), color);
}

} // namespace

bool PickedPalette::add(const WideColor &color)
{
    return append({nameOf(color), color});
}

std::size_t PickedPalette::add(const Palette &palette)
{
    return static_cast<std::size_t>(
        std::ranges::count_if(palette, [this](const PaletteColor &entry) { return append(entry); }));
}

void PickedPalette::remove(std::size_t index)
{
    if (index >= m_colors.size())
        return;
    m_known.remove(keyOf(m_colors[index].color));
    m_colors.erase(m_colors.begin() + static_cast<std::ptrdiff_t>(index));
}

bool PickedPalette::append(const PaletteColor &entry)
{
    const QString key = keyOf(entry.color);
    if (m_known.contains(key))
        return false;
    if (m_colors.size() == mostPaletteColors)
        remove(0);
    m_known.insert(key);
    m_colors.push_back(entry);
    return true;
}

} // namespace lumora
