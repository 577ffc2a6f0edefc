// SPDX-License-Identifier: MIT
#include "PopoverPath.h"

#include <QTransform>

#include <algorithm>
#include <array>
#include <cmath>

namespace lumora
{

namespace
{

/// The four corners in drawing order, counter-clockwise from the lower left; side n runs from corner n to corner n + 1.
enum Corner { LowerLeft, LowerRight, UpperRight, UpperLeft };
enum BalloonSide { BottomSide, RightSide, TopSide, LeftSide, NoSide };

/// The side of the balloon with the arrow, which faces the point.
BalloonSide arrowSide(PopoverPosition position)
{
    switch (position) {
    case PopoverPosition::Left:
    case PopoverPosition::LeftArrowNearBottom:
    case PopoverPosition::LeftArrowNearTop:
        return RightSide;
    case PopoverPosition::Below:
    case PopoverPosition::BelowArrowNearRight:
    case PopoverPosition::BelowArrowNearLeft:
        return TopSide;
    case PopoverPosition::Right:
    case PopoverPosition::RightArrowNearBottom:
    case PopoverPosition::RightArrowNearTop:
        return LeftSide;
    case PopoverPosition::Above:
    case PopoverPosition::AboveArrowNearRight:
    case PopoverPosition::AboveArrowNearLeft:
        return BottomSide;
    }
    return NoSide;
}

/// The corner next to an arrow near the end of its side; -1 for an arrow in the middle.
int cornerBesideArrow(PopoverPosition position)
{
    switch (position) {
    case PopoverPosition::LeftArrowNearBottom:
    case PopoverPosition::AboveArrowNearRight:
        return LowerRight;
    case PopoverPosition::LeftArrowNearTop:
    case PopoverPosition::BelowArrowNearRight:
        return UpperRight;
    case PopoverPosition::RightArrowNearBottom:
    case PopoverPosition::AboveArrowNearLeft:
        return LowerLeft;
    case PopoverPosition::RightArrowNearTop:
    case PopoverPosition::BelowArrowNearLeft:
        return UpperLeft;
    default:
        return -1;
    }
}

std::array<qreal, 4> cornerRadii(const QRectF &balloon, const PopoverMetrics &metrics)
{
    const qreal largest = std::max(0.0, std::min(balloon.width(), balloon.height()) / 2);
    std::array<qreal, 4> radii = {};
    radii.fill(std::clamp(metrics.cornerRadius, 0.0, largest));
    const int square = metrics.drawRoundCornerBesideArrow ? -1 : cornerBesideArrow(metrics.position);
    if (square >= 0)
        radii[static_cast<size_t>(square)] = 0;
    return radii;
}

} // namespace

void appendArrow(QPainterPath *path, const QRectF &balloon, const QPointF &attachmentPoint,
                 const PopoverMetrics &metrics)
{
    const BalloonSide side = arrowSide(metrics.position);
    if (side == NoSide)
        return;
    const auto radii = cornerRadii(balloon, metrics);
    const auto from = static_cast<size_t>(side);
    const auto to = (from + 1) % 4;
    const bool upright = side == RightSide || side == LeftSide;
    const bool towardsMore = side == BottomSide || side == RightSide;
    const qreal low = (upright ? balloon.y() : balloon.x()) + radii[towardsMore ? from : to];
    const qreal high =
        (upright ? balloon.y() + balloon.height() : balloon.x() + balloon.width()) - radii[towardsMore ? to : from];
    const qreal middle = upright ? attachmentPoint.y() : attachmentPoint.x();
    const qreal baseLow = std::max(low, middle - metrics.arrowWidth / 2);
    const qreal baseHigh = std::min(high, middle + metrics.arrowWidth / 2);
    if (baseLow >= baseHigh)
        return;
    const qreal begin = towardsMore ? baseLow : baseHigh;
    const qreal end = towardsMore ? baseHigh : baseLow;

    switch (side) {
    case BottomSide:
        path->lineTo(begin, balloon.y());
        path->lineTo(attachmentPoint + QPointF(0, metrics.distance));
        path->lineTo(end, balloon.y());
        break;
    case RightSide:
        path->lineTo(balloon.x() + balloon.width(), begin);
        path->lineTo(attachmentPoint - QPointF(metrics.distance, 0));
        path->lineTo(balloon.x() + balloon.width(), end);
        break;
    case TopSide:
        path->lineTo(begin, balloon.y() + balloon.height());
        path->lineTo(attachmentPoint - QPointF(0, metrics.distance));
        path->lineTo(end, balloon.y() + balloon.height());
        break;
    case LeftSide:
        path->lineTo(balloon.x(), begin);
        path->lineTo(attachmentPoint + QPointF(metrics.distance, 0));
        path->lineTo(balloon.x(), end);
        break;
    case NoSide:
        break;
    }
}

QPainterPath popoverPath(const QRectF &contentRect, const QPointF &attachmentPoint, const PopoverMetrics &metrics)
{
    const qreal margin = metrics.viewMargin;
    const QRectF balloon = contentRect.adjusted(-margin, -margin, margin, margin);
    const auto radii = cornerRadii(balloon, metrics);
    const std::array<QPointF, 4> corners = {QPointF(balloon.x(), balloon.y()),
                                            QPointF(balloon.x() + balloon.width(), balloon.y()),
                                            QPointF(balloon.x() + balloon.width(), balloon.y() + balloon.height()),
                                            QPointF(balloon.x(), balloon.y() + balloon.height())};
    // The unit vector along each side, in drawing order.
    const std::array<QPointF, 4> along = {QPointF(1, 0), QPointF(0, 1), QPointF(-1, 0), QPointF(0, -1)};
    // The length of a cubic curve's handles for a quarter circle, in radii: 4 / 3 * (sqrt(2) - 1).
    constexpr qreal handle = 0.5522847498307936;

    QPainterPath path(corners[LowerLeft] + along[BottomSide] * radii[LowerLeft]);
    for (size_t side = 0; side < 4; ++side) {
        if (metrics.drawsArrow && arrowSide(metrics.position) == static_cast<BalloonSide>(side))
            appendArrow(&path, balloon, attachmentPoint, metrics);
        const size_t next = (side + 1) % 4;
        const qreal radius = radii[next];
        const QPointF arcStart = corners[next] - along[side] * radius;
        const QPointF arcEnd = corners[next] + along[next] * radius;
        path.lineTo(arcStart);
        if (radius > 0)
            path.cubicTo(arcStart + along[side] * (radius * handle), arcEnd - along[next] * (radius * handle), arcEnd);
    }
    path.closeSubpath();
    return path;
}

QPainterPath onWholePixels(const QPainterPath &outline, const QRectF &balloon, qreal borderPixels,
                           qreal devicePixelRatio)
{
    if (balloon.isEmpty())
        return outline;
    const qreal half = borderPixels / 2;
    // Halves go outwards: there the window's shape has the pixel in any case.
    const auto least = [=](qreal edge) {
        return (std::ceil(edge * devicePixelRatio - half - 0.5) + half) / devicePixelRatio;
    };
    const auto most = [=](qreal edge) {
        return (std::floor(edge * devicePixelRatio + half + 0.5) - half) / devicePixelRatio;
    };
    const QRectF snapped(QPointF(least(balloon.left()), least(balloon.top())),
                         QPointF(most(balloon.right()), most(balloon.bottom())));
    QTransform onPixels;
    onPixels.translate(snapped.x(), snapped.y());
    onPixels.scale(snapped.width() / balloon.width(), snapped.height() / balloon.height());
    onPixels.translate(-balloon.x(), -balloon.y());
    return onPixels.map(outline);
}

} // namespace lumora
