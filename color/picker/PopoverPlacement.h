// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/popover/PopoverGeometry.h"

#include <QRectF>
#include <QSizeF>
#include <Qt>

namespace lumora
{

/// Which way a popover opens from a control.
struct PopoverPlacement
{
    PopoverPosition position = PopoverPosition::Right;
    /// What the arrow points at, on the control's edge.
    QPointF point;

    bool operator==(const PopoverPlacement &) const = default;
};

/// Where a popover with a content of the size opens from a control, so that it stays on the screen: on the preferred
/// edge, else on the opposite one, else on another; along that edge centred, else shifted. All in screen coordinates, y
/// upwards.
PopoverPlacement popoverPlacement(const QRectF &control, const QSizeF &contentSize, const QRectF &screen,
                                  Qt::Edge preferredEdge, const PopoverMetrics &metrics);

} // namespace lumora
