// SPDX-License-Identifier: MIT
#include "SeenPixels.h"

#include <QtGlobal>

#include <algorithm>

namespace lumora
{

namespace
{

qint64 dividedDown(qint64 number, qint64 by)
{
    return number >= 0 ? number / by : -((-number + by - 1) / by);
}

} // namespace

std::vector<Stretch> stretchesSeen(int scaled, int picture, int halfPixels)
{
    std::vector<Stretch> seen(static_cast<std::size_t>(scaled));
    const qint64 reach = qint64{halfPixels} * std::max(scaled, picture);
    const qint64 unit = 2 * qint64{scaled};
    for (int i = 0; i < scaled; ++i) {
        const qint64 centre = (2 * qint64{i} + 1) * picture;
        const qint64 last = -dividedDown(-(centre + reach), unit) - 1;
        Stretch &stretch = seen[static_cast<std::size_t>(i)];
        stretch.first = static_cast<int>(std::clamp<qint64>(dividedDown(centre - reach, unit), 0, picture - 2));
        stretch.last = static_cast<int>(std::clamp<qint64>(last, stretch.first + 1, picture - 1));
    }
    return seen;
}

} // namespace lumora
