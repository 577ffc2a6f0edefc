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
    /// The edge on which the popover opens where there is room; elsewhere it opens on another.
    Qt::Edge preferredEdge = Qt::BottomEdge;
    /// From that edge to the arrow's tip, in points.
    qreal gap = 0;
    /// In the view's own coordinates; empty for the whole view.
    QRect area;
};

/// What a shown popover points at, wherever that has moved meanwhile: a control, or a point of a window.
class PopoverAnchor
{
public:
    PopoverAnchor() = default;
    /// A point in the window's base coordinates (from its lower left corner, y upwards), which keeps its place below
    /// the window's upper left corner; in screen coordinates without a window.
    PopoverAnchor(QWidget *window, const QPointF &point);
    explicit PopoverAnchor(const PopoverTarget &target);

    /// Where a balloon around a content of the size opens now; the point of a popover that was given one keeps the
    /// position. Nothing where the control is gone.
    std::optional<PopoverPlacement> placement(const QSizeF &contentSize, const PopoverMetrics &metrics) const;

private:
    PopoverTarget m_target;
    QPointer<QWidget> m_view; ///< the target's, or the window
    QPointF m_point;          ///< y downwards in the window; y upwards on screen without one
    bool m_isPoint = true;
    bool m_isInWindow = false;
};

} // namespace lumora
