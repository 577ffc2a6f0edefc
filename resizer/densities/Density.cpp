// SPDX-License-Identifier: MIT
#include "Density.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

struct NamedDensity
{
    QLatin1StringView name;
    QLatin1StringView bucket;
    Density density;
};

constexpr std::array<NamedDensity, 7> densities{{
    {"0.75x"_L1, "ldpi"_L1, {3, 4}},
    {"1x"_L1, "mdpi"_L1, {1, 1}},
    {"1.33x"_L1, "tvdpi"_L1, {4, 3}},
    {"1.5x"_L1, "hdpi"_L1, {3, 2}},
    {"2x"_L1, "xhdpi"_L1, {2, 1}},
    {"3x"_L1, "xxhdpi"_L1, {3, 1}},
    {"4x"_L1, "xxxhdpi"_L1, {4, 1}},
}};

/// One edge, and whether it was rounded.
std::pair<int, bool> scaledEdge(int pixels, const Density &from, const Density &to)
{
    const qint64 dividend = qint64{pixels} * to.numerator * from.denominator;
    const qint64 divisor = qint64{to.denominator} * from.numerator;
    const qint64 nearest = (2 * dividend + divisor) / (2 * divisor);
    const qint64 edge = std::max<qint64>(nearest, 1);
    return {static_cast<int>(edge), edge * divisor != dividend};
}

} // namespace

std::optional<Density> densityNamed(QStringView text)
{
    for (const NamedDensity &one : densities) {
        if (text == one.name || text == one.bucket)
            return one.density;
    }
    return std::nullopt;
}

QString densityText(const Density &density)
{
    const auto *found =
        std::ranges::find_if(densities, [&density](const NamedDensity &one) { return one.density == density; });
    return found == densities.end() ? QString::number(density.factor()) + u'x' : QString(found->name);
}

QString bucketText(const Density &density)
{
    const auto *found =
        std::ranges::find_if(densities, [&density](const NamedDensity &one) { return one.density == density; });
    return found == densities.end() ? QString() : QString(found->bucket);
}

ScaledSize scaledSize(QSize pixels, const Density &from, const Density &to)
{
    const auto [width, widthRounded] = scaledEdge(pixels.width(), from, to);
    const auto [height, heightRounded] = scaledEdge(pixels.height(), from, to);
    return {{width, height}, widthRounded || heightRounded};
}

} // namespace lumora
