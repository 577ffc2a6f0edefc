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
    int margin = 16;
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

/// Arranges the groups in rows of the width, at least one tile wide, with a heading above each family.
ModelLayout layOutModels(const std::vector<ModelGroup> &groups, int width, const ModelTileMetrics &metrics = {});

} // namespace lumora
