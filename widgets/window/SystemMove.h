// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>

class QMouseEvent;
class QWindow;

namespace lumora
{

/// Leaves the drag of a window to the window system, as if it had seen the press: the window keeps its place under the
/// pointer, which has moved since. QWindow::startSystemMove lets an X11 window manager count from the place of the
/// pointer at the call, and the window lags behind by what it has moved before. `pressed` is the place of the press on
/// the screen, in points; `event` is the motion by which the press became a drag. Returns whether the window system
/// takes the drag; if so, the window gets the release at once, since the window system keeps the real one.
bool startSystemMove(QWindow *window, const QPoint &pressed, const QMouseEvent &event);

} // namespace lumora
