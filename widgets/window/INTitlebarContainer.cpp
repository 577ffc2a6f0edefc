// SPDX-License-Identifier: MIT
#include "INTitlebarContainer.h"

#include "DoubleClickPreference.h"
#include "INAppStoreWindow.h"
#include "SystemMove.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QStyleHints>
#include <QWindow>

#include <utility>

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
        m_isDoubleClick = false;
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
    auto *owner = qobject_cast<INAppStoreWindow *>(window());
    if (!std::exchange(m_isDoubleClick, false) || !owner)
        return;
    if (owner->doubleClickPreference()->miniaturizesOnDoubleClick())
        owner->miniaturize();
    else if (owner->doubleClickPreference()->zoomsOnDoubleClick())
        owner->performZoom();
}

void INTitlebarContainer::mouseDoubleClickEvent(QMouseEvent *event)
{
    mousePressEvent(event);
    m_isDoubleClick = event->button() == Qt::LeftButton;
}

} // namespace lumora
