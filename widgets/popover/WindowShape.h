// SPDX-License-Identifier: MIT
#pragma once

#include <QPainterPath>
#include <QRegion>

class QWindow;

namespace lumora
{

/// Whether transparent pixels of a window show what lies behind it. Under X11 that needs a compositing manager.
bool windowsAreTranslucent();

/// Cuts the window to the pixels that the outline touches, in the window's own points; an empty outline makes it whole
/// again. The window must have been created; only X11 cuts.
void setWindowShape(QWindow *window, const QPainterPath &outline);

/// Lets the mouse through the window everywhere but in the region, which is in the window's own points. What is drawn
/// stays as it is. The window must have been created; platforms without such a region take every press.
void setInputRegion(QWindow *window, const QRegion &region);

} // namespace lumora
