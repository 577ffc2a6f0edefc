// SPDX-License-Identifier: MIT
#include "PopoverPlacement.h"

#include <array>

namespace lumora
{

namespace
{

struct EdgeChoice
{
    Qt::Edge edge;
    Qt::Edge opposite;
    /// First the centered position, then the shifted ones.
    std::array<PopoverPosition, 3> positions;
};

using enum PopoverPosition;
constexpr std::array<EdgeChoice, 4> choices{{
    {Qt::RightEdge, Qt::LeftEdge, {Right, RightArrowNearTop, RightArrowNearBottom}},
    {Qt::LeftEdge, Qt::RightEdge, {Left, LeftArrowNearTop, LeftArrowNearBottom}},
    {Qt::BottomEdge, Qt::TopEdge, {Below, BelowArrowNearRight, BelowArrowNearLeft}},
    {Qt::TopEdge, Qt::BottomEdge, {Above, AboveArrowNearRight, AboveArrowNearLeft}},
}};

/// In square points: larger than rounding errors, smaller than any visible difference.
constexpr qreal roundingArea = 0.5;

const EdgeChoice &choiceOf(Qt::Edge edge)
{
    for (const EdgeChoice &choice : choices) {
        if (choice.edge == edge)
            return choice;
    }
    return choices.front();
}

/// The point in front of the middle of an edge, y upwards.
QPointF pointBeside(const PopoverTargetArea &target, Qt::Edge edge)
{
    const QRectF &area = target.area;
    switch (edge) {
    case Qt::LeftEdge:
        return {area.x() - target.gap, area.center().y()};
    case Qt::RightEdge:
        return {area.x() + area.width() + target.gap, area.center().y()};
    case Qt::BottomEdge:
        return {area.center().x(), area.y() - target.gap};
    case Qt::TopEdge:
        return {area.center().x(), area.y() + area.height() + target.gap};
    }
    return area.center();
}

qreal areaOf(const QRectF &rect)
{
    return rect.isValid() ? rect.width() * rect.height() : 0;
}

} // namespace

PopoverPlacement popoverPlacement(const PopoverTargetArea &target, const QSizeF &contentSize, const QRectF &screen,
                                  PopoverMetrics metrics)
{
    const EdgeChoice &preferred = choiceOf(target.preferredEdge);
    std::vector<const EdgeChoice *> order{&preferred, &choiceOf(preferred.opposite)};
    for (const EdgeChoice &choice : choices)
        order.push_back(&choice);

    PopoverPlacement best{preferred.positions.front(), pointBeside(target, preferred.edge)};
    qreal mostVisible = roundingArea;
    for (const EdgeChoice *choice : order) {
        const QPointF point = pointBeside(target, choice->edge);
        for (const PopoverPosition position : choice->positions) {
            metrics.position = position;
            QRectF frame(QPointF(), frameRectForContentRect(QRectF(QPointF(), contentSize), metrics).size());
            frame.moveTopLeft(point - attachmentPointForRect(frame, metrics));
            const qreal visible = areaOf(frame.intersected(screen));
            if (visible >= areaOf(frame) - roundingArea)
                return {position, point};
            if (visible > mostVisible + roundingArea) {
                mostVisible = visible;
                best = {position, point};
            }
        }
    }
    return best;
}

PopoverPosition bestPopoverPosition(const PopoverSurroundings &surroundings, const PopoverMetrics &metrics)
{
    const QPointF point = surroundings.point;
    const QRectF screen = surroundings.screen;
    const qreal screenMaxX = screen.x() + screen.width();
    const qreal screenMaxY = screen.y() + screen.height();
    const qreal width = surroundings.frameSize.width() + 2 * metrics.viewMargin;
    const qreal height = surroundings.frameSize.height() + 2 * metrics.viewMargin;
    const qreal room = metrics.arrowRoom();

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

} // namespace lumora
