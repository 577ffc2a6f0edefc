// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>

namespace lumora
{

/// Where a balloon lies relative to the point it points at, and where its arrow sits on it. The plain sides have the
/// arrow in the middle of the facing side; the others name the end of that side which the arrow is near.
enum class PopoverPosition : quint32 {
    Left = 0,
    Below = 1,
    Right = 2,
    Above = 3,
    LeftArrowNearBottom = 4,
    LeftArrowNearTop = 5,
    RightArrowNearBottom = 6,
    RightArrowNearTop = 7,
    AboveArrowNearRight = 8,
    AboveArrowNearLeft = 9,
    BelowArrowNearRight = 10,
    BelowArrowNearLeft = 11,
};

/// The settings that a balloon's geometry depends on; every length in points.
struct PopoverMetrics
{
    PopoverPosition position = PopoverPosition::Below;
    qreal distance = 0;
    qreal borderWidth = 2;
    qreal cornerRadius = 8;
    bool drawsArrow = true;
    qreal arrowWidth = 20;
    qreal arrowHeight = 16;
    bool drawRoundCornerBesideArrow = true;
    qreal viewMargin = 0;

    /// What the arrow takes on its side of the balloon.
    qreal arrowRoom() const { return arrowHeight + distance; }
};

// All rectangles and points below count y upwards: a QRectF's y() is its lower edge, y() + height() its upper one.

/// The frame around a content rectangle: margin, room for the arrow and its distance, border. For a balloon above its
/// point the origin moves up by that room, not down; contentRectForFrameRect() undoes exactly this.
QRectF frameRectForContentRect(const QRectF &contentRect, const PopoverMetrics &metrics);
/// The inverse of frameRectForContentRect().
QRectF contentRectForFrameRect(const QRectF &frameRect, const PopoverMetrics &metrics);
/// Where the content lies on screen inside a frame that stands with its attachment point on the anchor. The same as
/// contentRectForFrameRect() but for the positions above the point, where that function would lay the content over it.
QRectF placedContentRect(const QRectF &frameRect, const PopoverMetrics &metrics);

/// The arrow's place on the frame's edge, the spot that is laid on the anchor. An unknown position yields (0, 0).
QPointF attachmentPointForRect(const QRectF &rect, const PopoverMetrics &metrics);

/// Turns y-up into Qt's y-down coordinates and back, inside an area of the height. The one place where that happens.
QRectF flipped(const QRectF &rect, qreal height);
QPointF flipped(const QPointF &point, qreal height);

} // namespace lumora
