// SPDX-License-Identifier: MIT
#include "INTitlebarContainer.h"

#include "SystemMove.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QStyleHints>
#include <QWindow>

namespace lumora
{

INTitlebarContainer::INTitlebarContainer(QWidget *parent) : QWidget(parent) {}

void INTitlebarContainer::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || window()->isFullScreen()) {
        QWidget::mousePressEvent(event);
        return;
    }
    m_drag = Drag::Pressed;
    m_dragStart = event->globalPosition().toPoint();
    m_windowOrigin = window()->pos();
}

void INTitlebarContainer::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint travel = event->globalPosition().toPoint() - m_dragStart;
    if (m_drag == Drag::Pressed && travel.manhattanLength() >= QGuiApplication::styleHints()->startDragDistance()) {
        m_drag = Drag::Moves;
        QWindow *handle = window()->windowHandle();
        if (handle && startSystemMove(handle, m_dragStart, *event))
            m_drag = Drag::None;
    }
    if (m_drag == Drag::Moves)
        window()->move(m_windowOrigin + travel);
}

void INTitlebarContainer::mouseReleaseEvent(QMouseEvent *event)
{
    m_drag = Drag::None;
    QWidget::mouseReleaseEvent(event);
}

} // namespace lumora
