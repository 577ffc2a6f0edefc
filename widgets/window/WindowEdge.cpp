// SPDX-License-Identifier: MIT
#include "WindowEdge.h"

#include "WindowPlacement.h"
#include "widgets/style/Palette.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWindow>

namespace lumora
{

WindowEdge::WindowEdge(Qt::Edge edge, QWidget *window) : QWidget(window), m_edge(edge)
{
    setMouseTracking(true);
}

void WindowEdge::follow()
{
    const QSize window = parentWidget()->size();
    switch (m_edge) {
    case Qt::TopEdge:
        setGeometry(0, 0, window.width(), thickness);
        break;
    case Qt::BottomEdge:
        setGeometry(0, window.height() - thickness, window.width(), thickness);
        break;
    case Qt::LeftEdge:
        setGeometry(0, 0, thickness, window.height());
        break;
    case Qt::RightEdge:
        setGeometry(window.width() - thickness, 0, thickness, window.height());
        break;
    }
}

void WindowEdge::setResizes(bool resizes)
{
    setAttribute(Qt::WA_TransparentForMouseEvents, !resizes);
}

Qt::Edges WindowEdge::edgesAt(const QPoint &position) const
{
    return resizedEdges(mapToParent(position), parentWidget()->size(), thickness);
}

void WindowEdge::paintEvent(QPaintEvent *)
{
    QRect line = rect();
    switch (m_edge) {
    case Qt::TopEdge:
        line.setHeight(1);
        break;
    case Qt::BottomEdge:
        line.setTop(line.bottom());
        break;
    case Qt::LeftEdge:
        line = line.adjusted(0, 1, 0, -1);
        line.setWidth(1);
        break;
    case Qt::RightEdge:
        line = line.adjusted(0, 1, 0, -1);
        line.setLeft(line.right());
        break;
    }
    QPainter(this).fillRect(line, palette::windowOutline);
}

void WindowEdge::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_dragged = edgesAt(event->position().toPoint());
    m_dragStart = event->globalPosition().toPoint();
    m_frameBeforeDrag = window()->geometry();
    if (window()->windowHandle() && window()->windowHandle()->startSystemResize(m_dragged))
        m_dragged = {};
}

void WindowEdge::mouseMoveEvent(QMouseEvent *event)
{
    if (m_dragged) {
        // The window system cannot resize the window, so this code does it.
        window()->setGeometry(resizedFrame(m_frameBeforeDrag, m_dragged,
                                           event->globalPosition().toPoint() - m_dragStart, window()->minimumSize(),
                                           window()->maximumSize()));
        return;
    }
    setCursor(resizeCursor(edgesAt(event->position().toPoint())));
}

void WindowEdge::mouseReleaseEvent(QMouseEvent *)
{
    m_dragged = {};
}

} // namespace lumora
