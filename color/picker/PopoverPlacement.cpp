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
    /// Centred first, then shifted either way.
    std::array<PopoverPosition, 3> positions;
};

constexpr std::array<EdgeChoice, 4> choices{{
    {Qt::RightEdge,
     Qt::LeftEdge,
     {PopoverPosition::Right, PopoverPosition::RightArrowNearTop, PopoverPosition::RightArrowNearBottom}},
    {Qt::LeftEdge,
     Qt::RightEdge,
     {PopoverPosition::Left, PopoverPosition::LeftArrowNearTop, PopoverPosition::LeftArrowNearBottom}},
    {Qt::BottomEdge,
     Qt::TopEdge,
     {PopoverPosition::Below, PopoverPosition::BelowArrowNearLeft, PopoverPosition::BelowArrowNearRight}},
    {Qt::TopEdge,
     Qt::BottomEdge,
     {PopoverPosition::Above, PopoverPosition::AboveArrowNearLeft, PopoverPosition::AboveArrowNearRight}},
}};

/// The middle of an edge of a rectangle whose y runs upwards.
QPointF pointOn(const QRectF &control, Qt::Edge edge)
{
    switch (edge) {
    case Qt::LeftEdge:
        return {control.x(), control.center().y()};
    case Qt::RightEdge:
        return {control.x() + control.width(), control.center().y()};
    case Qt::BottomEdge:
        return {control.center().x(), control.y()};
    case Qt::TopEdge:
        return {control.center().x(), control.y() + control.height()};
    }
    return control.center();
}

bool fits(const QPointF &point, const QSizeF &contentSize, const QRectF &screen, PopoverMetrics metrics,
          PopoverPosition position)
{
    metrics.position = position;
    QRectF frame(QPointF(), frameRectForContentRect(QRectF(QPointF(), contentSize), metrics).size());
    frame.moveTopLeft(point - attachmentPointForRect(frame, metrics));
    return screen.contains(frame);
}

const EdgeChoice &choiceOf(Qt::Edge edge)
{
    for (const EdgeChoice &choice : choices) {
        if (choice.edge == edge)
            return choice;
    }
    return choices.front();
}

} // namespace

PopoverPlacement popoverPlacement(const QRectF &control, const QSizeF &contentSize, const QRectF &screen,
                                  Qt::Edge preferredEdge, const PopoverMetrics &metrics)
{
    const EdgeChoice &preferred = choiceOf(preferredEdge);
    std::vector<const EdgeChoice *> order{&preferred, &choiceOf(preferred.opposite)};
    for (const EdgeChoice &choice : choices)
        order.push_back(&choice);
    for (const EdgeChoice *choice : order) {
        const QPointF point = pointOn(control, choice->edge);
        for (const PopoverPosition position : choice->positions) {
            if (fits(point, contentSize, screen, metrics, position))
                return {position, point};
        }
    }
    return {preferred.positions.front(), pointOn(control, preferred.edge)};
}

} // namespace lumora
