// SPDX-License-Identifier: MIT
#pragma once

#include "PopoverPlacement.h"

#include <QPointer>
#include <QRect>
#include <QWidget>

#include <optional>

namespace lumora
{

/// The control that a popover points at, or an area of it.
struct PopoverTarget
{
    QWidget *view = nullptr;
    /// The edge on which the popover opens if there is room; otherwise it opens on another.
    Qt::Edge preferredEdge = Qt::BottomEdge;
    /// The distance from that edge to the arrow's tip, in points.
    qreal gap = 0;
    /// In the view's own coordinates; empty for the whole view.
    QRect area;
};

/// The target of a shown popover: a control, or a point of a window. It is found again when the control or window
/// moves.
class PopoverAnchor
{
public:
    PopoverAnchor() = default;
    /// A point in the window's base coordinates (from its lower left corner, y up); in screen coordinates without a
    /// window. It keeps its distance from the window's upper left corner.
    PopoverAnchor(QWidget *window, const QPointF &point);
    explicit PopoverAnchor(const PopoverTarget &target);

    /// The place of a balloon around a content of the size. A popover with a point keeps the position; empty if the
    /// control is gone.
    std::optional<PopoverPlacement> placement(const QSizeF &contentSize, const PopoverMetrics &metrics) const;

private:
    PopoverTarget m_target;
    QPointer<QWidget> m_view; ///< the target's, or the window
    QPointF m_point;          ///< y downwards in the window; y upwards on screen without one
    bool m_isPoint = true;
    bool m_isInWindow = false;
};

} // namespace lumora
