// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QList>

namespace lumora
{

/// A source icon with the pictures of it that the pane shows.
struct ShownIcon
{
    QImage icon;
    QList<QImage> pictures; ///< in the edge lengths asked for; the first without corners
    int cornerMode = 0;     ///< of the other pictures
};

/// Draws the icon in edge lengths in pixels. Callable on any thread.
ShownIcon shownIcon(const QImage &icon, const QList<int> &sides, int cornerMode);

} // namespace lumora
