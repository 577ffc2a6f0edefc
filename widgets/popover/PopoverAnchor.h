// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QPointer>
#include <QWidget>

namespace lumora
{

/// The spot a popover points at. It is given as a point, but it was meant for the control there: when the window's
/// layout changes, the anchor goes with that control.
class PopoverAnchor
{
public:
    PopoverAnchor() = default;
    /// A point in the window's base coordinates (from its lower left corner, y upwards); in screen coordinates without
    /// a window.
    PopoverAnchor(QWidget *window, const QPointF &point);

    /// The anchor on screen by now, y upwards.
    QPointF onScreen() const;

private:
    QPointer<QWidget> m_window;
    /// The control nearest to the point, if one is near.
    QPointer<QWidget> m_control;
    /// From the control's middle, or from the window's upper left corner; y downwards. On screen without a window.
    QPointF m_offset;
};

} // namespace lumora
