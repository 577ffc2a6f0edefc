// SPDX-License-Identifier: MIT
#pragma once

#include "PopoverGeometry.h"

#include <Qt>

namespace lumora
{

/// The place of a balloon, and the point that its arrow points at.
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
    /// The edge on which the popover opens if there is room.
    Qt::Edge preferredEdge = Qt::BottomEdge;
    /// The distance from that edge to the arrow's tip, in points.
    qreal gap = 0;
};

/// The place beside the area of a balloon around a content of the size, so that it stays on the screen: on the
/// preferred edge, else on the opposite one, else on another; centered along that edge, else shifted. If it fits
/// nowhere, it opens where most of it is visible, or as preferred if no place is visible at all.
PopoverPlacement popoverPlacement(const PopoverTargetArea &target, const QSizeF &contentSize, const QRectF &screen,
                                  PopoverMetrics metrics);

/// The input for the best position, in screen coordinates, y upwards.
struct PopoverSurroundings
{
    QPointF point;                     ///< the anchor
    QSizeF frameSize;                  ///< of the popover's window
    QRectF screen;                     ///< the usable area of the parent's screen
    std::optional<QRectF> parentFrame; ///< none without a parent window
};
/// For a popover with a point instead of an area: the position that keeps the balloon on the screen and, along its
/// side, over the parent window.
PopoverPosition bestPopoverPosition(const PopoverSurroundings &surroundings, const PopoverMetrics &metrics);

} // namespace lumora
