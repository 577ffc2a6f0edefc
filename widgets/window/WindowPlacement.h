// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QRect>
#include <Qt>

namespace lumora
{

/// A frame that the user can reach on the present screens. If enough of its title bar is visible, that is the given
/// frame. Otherwise it is moved, and shrunk if necessary, to the screen that it overlaps most, or to the first screen
/// if it overlaps none. All in Qt's screen coordinates.
QRect reachableFrame(const QRect &frame, const QList<QRect> &screens, int titleBarHeight);

/// The edges that a press at the point drags: those within `grip` points, and near a corner both of its edges.
Qt::Edges resizedEdges(const QPoint &point, const QSize &window, int grip);
/// The frame after dragging the edges by the travel. Its size stays between the two sizes; the opposite edges do not
/// move.
QRect resizedFrame(const QRect &frame, Qt::Edges edges, const QPoint &travel, const QSize &smallest,
                   const QSize &largest);
Qt::CursorShape resizeCursor(Qt::Edges edges);

} // namespace lumora
