// SPDX-License-Identifier: MIT
#include "NamedColors.h"

#include "color/HsbColor.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <tuple>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// Hues that look like one family are together, however light or dark.
constexpr float hueFamilies = 12.0F;
constexpr float graySaturation = 0.08F;

auto sortKey(const NamedColor &named)
{
    const HsbColor hsb = hsbFrom(named.color);
    const bool gray = hsb.saturation < graySaturation;
    const float family = gray ? -1.0F : std::fmod(std::round(hsb.hue * hueFamilies), hueFamilies);
    const float lightness = named.color.red + named.color.green + named.color.blue;
    return std::make_tuple(family, -lightness, named.name);
}

} // namespace

std::vector<NamedColor> webColors()
{
    QStringList names = QColor::colorNames() + QStringList{u"rebeccapurple"_s};
    names.removeAll(u"transparent"_s);
    names.sort();

    std::vector<NamedColor> colors;
    std::set<QRgb> seen;
    for (const QString &name : std::as_const(names)) {
        const QColor color = name == u"rebeccapurple" ? QColor(0x66, 0x33, 0x99) : QColor(name);
        if (seen.insert(color.rgb()).second)
            colors.push_back({name, rgbaFrom(color)});
    }
    std::ranges::sort(colors, {}, sortKey);
    return colors;
}

} // namespace lumora
