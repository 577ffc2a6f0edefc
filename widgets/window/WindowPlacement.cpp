// SPDX-License-Identifier: MIT
#include "WindowPlacement.h"

#include <algorithm>

namespace lumora
{

namespace
{

/// The least part of a title bar that must be on a screen to drag the window, in points.
constexpr int handhold = 100;
/// The distance from a corner, along an edge, within which a press drags both edges, in points.
constexpr int cornerReach = 16;

qint64 area(const QRect &rect)
{
    return rect.isEmpty() ? 0 : qint64{rect.width()} * rect.height();
}

} // namespace

QRect reachableFrame(const QRect &frame, const QList<QRect> &screens, int titleBarHeight)
{
    if (screens.isEmpty())
        return frame;
    const QRect titleBar(frame.topLeft(), QSize(frame.width(), titleBarHeight));
    for (const QRect &screen : screens) {
        const QRect seen = titleBar & screen;
        if (seen.width() >= std::min(handhold, frame.width()) && seen.height() == titleBarHeight)
            return frame;
    }
    const QRect screen = *std::max_element(screens.cbegin(), screens.cend(), [&frame](const QRect &a, const QRect &b) {
        return area(a & frame) < area(b & frame);
    });
    QRect moved(frame.topLeft(), frame.size().boundedTo(screen.size()));
    moved.moveLeft(std::clamp(moved.left(), screen.left(), screen.left() + screen.width() - moved.width()));
    moved.moveTop(std::clamp(moved.top(), screen.top(), screen.top() + screen.height() - moved.height()));
    return moved;
}

Qt::Edges resizedEdges(const QPoint &point, const QSize &window, int grip)
{
    const int left = point.x();
    const int right = window.width() - 1 - point.x();
    const int top = point.y();
    const int bottom = window.height() - 1 - point.y();
    if (std::min({left, right, top, bottom}) >= grip)
        return {};
    const bool onSide = std::min(left, right) < grip;
    const bool onLevel = std::min(top, bottom) < grip;
    Qt::Edges edges;
    edges.setFlag(Qt::LeftEdge, left < (onLevel ? cornerReach : grip));
    edges.setFlag(Qt::RightEdge, right < (onLevel ? cornerReach : grip));
    edges.setFlag(Qt::TopEdge, top < (onSide ? cornerReach : grip));
    edges.setFlag(Qt::BottomEdge, bottom < (onSide ? cornerReach : grip));
    return edges;
}

QRect resizedFrame(const QRect &frame, Qt::Edges edges, const QPoint &travel, const QSize &smallest,
                   const QSize &largest)
{
    QSize size = frame.size();
    if (edges & Qt::LeftEdge)
        size.rwidth() -= travel.x();
    if (edges & Qt::RightEdge)
        size.rwidth() += travel.x();
    if (edges & Qt::TopEdge)
        size.rheight() -= travel.y();
    if (edges & Qt::BottomEdge)
        size.rheight() += travel.y();
    size = size.boundedTo(largest).expandedTo(smallest);
    QRect resized(frame.topLeft(), size);
    if (edges & Qt::LeftEdge)
        resized.moveRight(frame.right());
    if (edges & Qt::TopEdge)
        resized.moveBottom(frame.bottom());
    return resized;
}

Qt::CursorShape resizeCursor(Qt::Edges edges)
{
    if (edges == (Qt::LeftEdge | Qt::TopEdge) || edges == (Qt::RightEdge | Qt::BottomEdge))
        return Qt::SizeFDiagCursor;
    if (edges == (Qt::RightEdge | Qt::TopEdge) || edges == (Qt::LeftEdge | Qt::BottomEdge))
        return Qt::SizeBDiagCursor;
    if (edges & (Qt::LeftEdge | Qt::RightEdge))
        return Qt::SizeHorCursor;
    if (edges & (Qt::TopEdge | Qt::BottomEdge))
        return Qt::SizeVerCursor;
    return Qt::ArrowCursor;
}

} // namespace lumora
