// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>

namespace lumora
{

/// On which side of its point a balloon lies, and where its arrow is. The plain values have the arrow in the middle of
/// the side that faces the point; the others name the end of that side that is near the arrow.
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

    /// The space that the arrow takes on its side of the balloon.
    qreal arrowRoom() const { return arrowHeight + distance; }
};

// Below, y counts upwards: a QRectF's y() is its lower edge, y() + height() its upper edge.

/// The frame around a content rectangle: margin, room for the arrow and its distance, border. For a balloon above its
/// point the origin moves up by that room, not down; contentRectForFrameRect() reverses exactly this.
QRectF frameRectForContentRect(const QRectF &contentRect, const PopoverMetrics &metrics);
/// The inverse of frameRectForContentRect().
QRectF contentRectForFrameRect(const QRectF &frameRect, const PopoverMetrics &metrics);
/// The content's rectangle on screen, inside a frame whose attachment point is on the anchor. The same as
/// contentRectForFrameRect(), except for positions above the point, where that function would place the content over
/// the point.
QRectF placedContentRect(const QRectF &frameRect, const PopoverMetrics &metrics);

/// The arrow's place on the frame's edge, which is put on the anchor. An unknown position gives (0, 0).
QPointF attachmentPointForRect(const QRectF &rect, const PopoverMetrics &metrics);

/// Converts y-up coordinates to Qt's y-down ones and back, inside an area of the height. Nothing else does this
/// conversion.
QRectF flipped(const QRectF &rect, qreal height);
QPointF flipped(const QPointF &point, qreal height);

} // namespace lumora
