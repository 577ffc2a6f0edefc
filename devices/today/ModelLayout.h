// SPDX-License-Identifier: MIT
#pragma once

#include "ModelGroup.h"

#include <QRect>

#include <vector>

namespace lumora
{

/// Measures of the tiles, in points.
struct ModelTileMetrics
{
    QSize tile{132, 56};
    int gap = 8;
    int margin = 16;    ///< above, below and before the tiles
    int endMargin = 16; ///< behind them
    int headingHeight = 28;
};

/// The places of headings and tiles, in points; y counts downwards from the top of the list.
struct ModelLayout
{
    struct Heading
    {
        DeviceFamily family = {};
        QRect place;
    };

    std::vector<Heading> headings;
    std::vector<QRect> tiles; ///< in the order of the groups
    int height = 0;
};

/// Arranges the groups in rows of the width, at least one tile wide, with a heading above each family. A row is as high
/// as the highest of its tiles; without `heights`, in the order of the groups, each is as high as the metrics say.
ModelLayout layOutModels(const std::vector<ModelGroup> &groups, int width, const ModelTileMetrics &metrics = {},
                         const std::vector<int> &heights = {});

} // namespace lumora
