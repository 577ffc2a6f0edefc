// SPDX-License-Identifier: MIT
#pragma once

#include <QPainterPath>
#include <QRegion>

class QWindow;

namespace lumora
{

/// Whether transparent pixels of a window show what is behind it. Under X11 that needs a compositing manager.
bool windowsAreTranslucent();

/// Cuts the window to the pixels that the outline touches, in the window's own points; an empty outline undoes this.
/// The window must have been created. Does nothing on platforms other than X11.
void setWindowShape(QWindow *window, const QPainterPath &outline);

/// Lets mouse events pass through the window everywhere except in the region, which is in the window's own points. The
/// drawing does not change. The window must have been created. On platforms without such a region the window gets every
/// press.
void setInputRegion(QWindow *window, const QRegion &region);

} // namespace lumora
