// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QSizeF>

class QWidget;

namespace lumora
{

/// Where a message popup's arrow points, in window coordinates that count upwards from the window's lower left corner:
/// the middle of the control, 5 below it. `origin` is the control's upper left corner in its tool view's coordinates,
/// counting upwards too; a control's own coordinates begin there. Without a control, all is zero.
QPointF popupAnchor(QPointF origin, QSizeF controlSize);

/// The origin that `popupAnchor` wants, for a control that sits two levels below its tool's root view (in a panel of
/// it). Zero for none, and for one that sits higher than that.
QPointF popupAnchorOrigin(const QWidget *control);

} // namespace lumora
