// SPDX-License-Identifier: MIT
#include "ModelLayout.h"

#include <algorithm>
#include <optional>

namespace lumora
{

ModelLayout layOutModels(const std::vector<ModelGroup> &groups, int width, const ModelTileMetrics &metrics,
                         const std::vector<int> &heights)
{
    const int inner = width - metrics.margin - metrics.endMargin;
    const int columns = std::max((inner + metrics.gap) / (metrics.tile.width() + metrics.gap), 1);
    ModelLayout layout;
    layout.tiles.reserve(groups.size());
    std::optional<DeviceFamily> family;
    int column = 0;
    int y = metrics.margin;
    std::size_t rowStart = 0;
    int rowHeight = 0;
    const auto endRow = [&] {
        for (std::size_t index = rowStart; index < layout.tiles.size(); ++index)
            layout.tiles[index].setHeight(rowHeight);
        y += rowHeight;
        rowStart = layout.tiles.size();
        rowHeight = 0;
        column = 0;
    };
    for (std::size_t index = 0; index < groups.size(); ++index) {
        const DeviceFamily own = familyOf(groups[index].first());
        if (family != own) {
            if (family) {
                endRow();
                y += metrics.gap;
            }
            family = own;
            layout.headings.push_back({own, {metrics.margin, y, inner, metrics.headingHeight}});
            y += metrics.headingHeight;
        } else if (column == columns) {
            endRow();
            y += metrics.gap;
        }
        const int x = metrics.margin + column * (metrics.tile.width() + metrics.gap);
        layout.tiles.emplace_back(QPoint(x, y), metrics.tile);
        rowHeight = std::max(rowHeight, index < heights.size() ? heights[index] : metrics.tile.height());
        ++column;
    }
    endRow();
    layout.height = y + metrics.margin;
    return layout;
}

} // namespace lumora
