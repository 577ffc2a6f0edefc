// SPDX-License-Identifier: MIT
#include "INTitlebarContainer.h"

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
        QWindow *handle = window()->windowHandle();
        m_drag = handle && handle->startSystemMove() ? Drag::None : Drag::Moves;
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
