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

QRectF grown(const QRectF &rect, qreal by)
{
    return rect.adjusted(-by, -by, by, by);
}

} // namespace

QRectF frameRectForContentRect(const QRectF &contentRect, const PopoverMetrics &metrics)
{
    const qreal room = metrics.arrowRoom();
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
    const qreal room = metrics.arrowRoom();
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
    return sideOf(metrics.position) == Side::Above ? content.translated(0, 2 * metrics.arrowRoom()) : content;
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

QRectF flipped(const QRectF &rect, qreal height)
{
    return {rect.x(), height - rect.y() - rect.height(), rect.width(), rect.height()};
}

QPointF flipped(const QPointF &point, qreal height)
{
    return {point.x(), height - point.y()};
}

} // namespace lumora
