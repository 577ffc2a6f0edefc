// SPDX-License-Identifier: MIT
#include "PopoverGeometry.h"

namespace lumora
{

namespace
{

enum class Side { None, Left, Below, Right, Above };

Side sideOf(PopoverPosition position)
{
    switch (position) {
    case PopoverPosition::Left:
    case PopoverPosition::LeftArrowNearBottom:
    case PopoverPosition::LeftArrowNearTop:
        return Side::Left;
    case PopoverPosition::Below:
    case PopoverPosition::BelowArrowNearRight:
    case PopoverPosition::BelowArrowNearLeft:
        return Side::Below;
    case PopoverPosition::Right:
    case PopoverPosition::RightArrowNearBottom:
    case PopoverPosition::RightArrowNearTop:
        return Side::Right;
    case PopoverPosition::Above:
    case PopoverPosition::AboveArrowNearRight:
    case PopoverPosition::AboveArrowNearLeft:
        return Side::Above;
    }
    return Side::None;
}

qreal arrowRoom(const PopoverMetrics &metrics)
{
    return metrics.arrowHeight + metrics.distance;
}

QRectF grown(const QRectF &rect, qreal by)
{
    return rect.adjusted(-by, -by, by, by);
}

} // namespace

QRectF frameRectForContentRect(const QRectF &contentRect, const PopoverMetrics &metrics)
{
    const qreal room = arrowRoom(metrics);
    QRectF frame = grown(contentRect, metrics.viewMargin);
    switch (sideOf(metrics.position)) {
    case Side::Left:
        frame.setWidth(frame.width() + room);
        break;
    case Side::Below:
        frame.setHeight(frame.height() + room);
        break;
    case Side::Right:
        frame = QRectF(frame.x() - room, frame.y(), frame.width() + room, frame.height());
        break;
    case Side::Above:
        frame = QRectF(frame.x(), frame.y() + room, frame.width(), frame.height() + room);
        break;
    case Side::None:
        break;
    }
    return grown(frame, metrics.borderWidth);
}

QRectF contentRectForFrameRect(const QRectF &frameRect, const PopoverMetrics &metrics)
{
    const qreal room = arrowRoom(metrics);
    QRectF content = grown(frameRect, -metrics.borderWidth);
    switch (sideOf(metrics.position)) {
    case Side::Left:
        content.setWidth(content.width() - room);
        break;
    case Side::Below:
        content.setHeight(content.height() - room);
        break;
    case Side::Right:
        content = QRectF(content.x() + room, content.y(), content.width() - room, content.height());
        break;
    case Side::Above:
        content = QRectF(content.x(), content.y() - room, content.width(), content.height() - room);
        break;
    case Side::None:
        break;
    }
    return grown(content, -metrics.viewMargin);
}

QRectF placedContentRect(const QRectF &frameRect, const PopoverMetrics &metrics)
{
    const QRectF content = contentRectForFrameRect(frameRect, metrics);
    return sideOf(metrics.position) == Side::Above ? content.translated(0, 2 * arrowRoom(metrics)) : content;
}

QPointF attachmentPointForRect(const QRectF &rect, const PopoverMetrics &metrics)
{
    const qreal minX = rect.x();
    const qreal midX = rect.x() + rect.width() / 2;
    const qreal maxX = rect.x() + rect.width();
    const qreal minY = rect.y();
    const qreal midY = rect.y() + rect.height() / 2;
    const qreal maxY = rect.y() + rect.height();
    qreal k = 2 * metrics.borderWidth + metrics.arrowHeight / 2;
    if (metrics.drawRoundCornerBesideArrow)
        k += metrics.cornerRadius;

    switch (metrics.position) {
    case PopoverPosition::Left:
        return {maxX, midY};
    case PopoverPosition::Below:
        return {midX, maxY};
    case PopoverPosition::Right:
        return {minX, midY};
    case PopoverPosition::Above:
        return {midX, minY};
    case PopoverPosition::LeftArrowNearBottom:
        return {maxX, minY + k};
    case PopoverPosition::LeftArrowNearTop:
        return {maxX, maxY - k};
    case PopoverPosition::RightArrowNearBottom:
        return {minX, minY + k};
    case PopoverPosition::RightArrowNearTop:
        return {minX, maxY - k};
    case PopoverPosition::AboveArrowNearRight:
        return {maxX - k, minY};
    case PopoverPosition::AboveArrowNearLeft:
        return {minX + k, minY};
    case PopoverPosition::BelowArrowNearRight:
        return {maxX - k, maxY};
    case PopoverPosition::BelowArrowNearLeft:
        return {minX + k, maxY};
    }
    return {};
}

PopoverPosition bestPopoverPosition(const PopoverSurroundings &surroundings, const PopoverMetrics &metrics)
{
    const QPointF point = surroundings.point;
    const QRectF screen = surroundings.screen;
    const qreal screenMaxX = screen.x() + screen.width();
    const qreal screenMaxY = screen.y() + screen.height();
    const qreal width = surroundings.frameSize.width() + 2 * metrics.viewMargin;
    const qreal height = surroundings.frameSize.height() + 2 * metrics.viewMargin;
    const qreal room = arrowRoom(metrics);

    PopoverPosition side = PopoverPosition::Below;
    if (screen.y() > point.y() - height - room) {
        if (point.x() + width + room < screenMaxX)
            side = PopoverPosition::Right;
        else if (screen.x() <= point.x() - width - room)
            side = PopoverPosition::Left;
        else if (screenMaxY > point.y() + height + room)
            side = PopoverPosition::Above;
    }

    const QRectF limit = surroundings.parentFrame ? surroundings.parentFrame->intersected(screen) : screen;
    const qreal arrowEnd = metrics.arrowWidth / 2 + (metrics.drawRoundCornerBesideArrow ? metrics.cornerRadius : 0);

    if (side == PopoverPosition::Below || side == PopoverPosition::Above) {
        const bool below = side == PopoverPosition::Below;
        if (limit.x() > point.x() - width / 2 && screenMaxX > point.x() + width - arrowEnd)
            return below ? PopoverPosition::BelowArrowNearLeft : PopoverPosition::AboveArrowNearLeft;
        if (point.x() + width / 2 >= limit.x() + limit.width() && point.x() - width + arrowEnd >= screen.x())
            return below ? PopoverPosition::BelowArrowNearRight : PopoverPosition::AboveArrowNearRight;
    } else {
        const bool right = side == PopoverPosition::Right;
        if (limit.y() > point.y() - height / 2 && screenMaxY > point.y() + height - arrowEnd)
            return right ? PopoverPosition::RightArrowNearBottom : PopoverPosition::LeftArrowNearBottom;
        if (point.y() + height / 2 >= limit.y() + limit.height() && point.y() - height + arrowEnd >= screen.y())
            return right ? PopoverPosition::RightArrowNearTop : PopoverPosition::LeftArrowNearTop;
    }
    return side;
}

QRectF flipped(const QRectF &rect, qreal height)
{
    return {rect.x(), height - rect.y() - rect.height(), rect.width(), rect.height()};
}

QPointF flipped(const QPointF &point, qreal height)
{
    return {point.x(), height - point.y()};
}

} // namespace lumora
