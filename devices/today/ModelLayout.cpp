// SPDX-License-Identifier: MIT
#include "ModelLayout.h"

#include <algorithm>
#include <optional>

namespace lumora
{

ModelLayout layOutModels(const std::vector<ModelGroup> &groups, int width, const ModelTileMetrics &metrics)
{
    const int inner = width - 2 * metrics.margin;
    const int columns = std::max((inner + metrics.gap) / (metrics.tile.width() + metrics.gap), 1);
    ModelLayout layout;
    layout.tiles.reserve(groups.size());
    std::optional<DeviceFamily> family;
    int column = 0;
    int y = metrics.margin;
    for (const ModelGroup &group : groups) {
        if (family != familyOf(group.first())) {
            if (family)
                y += metrics.tile.height() + metrics.gap;
            family = familyOf(group.first());
            layout.headings.push_back({*family, {metrics.margin, y, inner, metrics.headingHeight}});
            y += metrics.headingHeight;
            column = 0;
        } else if (column == columns) {
            y += metrics.tile.height() + metrics.gap;
            column = 0;
        }
        const int x = metrics.margin + column * (metrics.tile.width() + metrics.gap);
        layout.tiles.emplace_back(QPoint(x, y), metrics.tile);
        ++column;
    }
    layout.height = y + (groups.empty() ? 0 : metrics.tile.height()) + metrics.margin;
    return layout;
}

} // namespace lumora
