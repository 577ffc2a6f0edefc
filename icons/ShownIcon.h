// SPDX-License-Identifier: MIT
#pragma once

#include "pictures/RoundedCorners.h"

#include <QImage>
#include <QList>

namespace lumora
{

/// A source icon with the pictures of it that the pane shows.
struct ShownIcon
{
    QImage icon;
    QList<QImage> pictures;                   ///< in the edge lengths asked for; the first without corners
    CornerMode cornerMode = CornerMode::None; ///< of the other pictures
};

/// Draws the icon in edge lengths in pixels. Callable on any thread.
ShownIcon shownIcon(const QImage &icon, const QList<int> &sides, CornerMode cornerMode);

} // namespace lumora
