// SPDX-License-Identifier: MIT
#pragma once

#include "PopoverGeometry.h"

#include <Qt>

namespace lumora
{

/// Where a balloon lies and the spot that its arrow points at.
struct PopoverPlacement
{
    PopoverPosition position = PopoverPosition::Below;
    QPointF point;

    bool operator==(const PopoverPlacement &) const = default;
};

/// What a popover points at, in screen coordinates, y upwards.
struct PopoverTargetArea
{
    QRectF area;
    /// The edge on which the popover opens where there is room.
    Qt::Edge preferredEdge = Qt::BottomEdge;
    /// From that edge to the arrow's tip, in points.
    qreal gap = 0;
};

/// Where a balloon around a content of the size opens beside the area so that it stays on the screen: on the preferred
/// edge, else on the opposite one, else on another; along that edge centered, else shifted. Where it fits nowhere, it
/// opens where most of it can be seen, and as preferred where nothing can.
PopoverPlacement popoverPlacement(const PopoverTargetArea &target, const QSizeF &contentSize, const QRectF &screen,
                                  PopoverMetrics metrics);

/// What the best position depends on; screen coordinates, y upwards.
struct PopoverSurroundings
{
    QPointF point;                     ///< the anchor
    QSizeF frameSize;                  ///< of the popover's window
    QRectF screen;                     ///< the usable area of the parent's screen
    std::optional<QRectF> parentFrame; ///< none without a parent window
};
/// For a popover that was given a bare point: the position that keeps the balloon on the screen and, along its side,
/// over the parent window.
PopoverPosition bestPopoverPosition(const PopoverSurroundings &surroundings, const PopoverMetrics &metrics);

} // namespace lumora
