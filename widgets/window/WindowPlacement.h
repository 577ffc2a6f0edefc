// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QRect>
#include <Qt>

namespace lumora
{

/// A frame that the user can reach on the screens there are: the given one if enough of its title bar can be seen, else
/// moved, and shrunk where it must be, to the screen it overlaps most; the first screen when it overlaps none. All in
/// Qt's screen coordinates.
QRect reachableFrame(const QRect &frame, const QList<QRect> &screens, int titleBarHeight);

/// Which edges a press at the point drags: those within `grip` points of the window's border, and near a corner both of
/// its edges.
Qt::Edges resizedEdges(const QPoint &point, const QSize &window, int grip);
/// The frame after dragging the edges by the travel. It keeps between the two sizes; the opposite edges stay in place.
QRect resizedFrame(const QRect &frame, Qt::Edges edges, const QPoint &travel, const QSize &smallest,
                   const QSize &largest);
Qt::CursorShape resizeCursor(Qt::Edges edges);

} // namespace lumora
