// SPDX-License-Identifier: MIT
#include "BFColorPickerPopoverView.h"

#include "BFColorPickerPopover.h"
#include "PickerContent.h"
#include "PickerMetrics.h"
#include "color/picking/DragRule.h"
#include "widgets/popover/ScreenCoordinates.h"

#include <QMouseEvent>

namespace lumora
{

BFColorPickerPopoverView::BFColorPickerPopoverView(QWidget *parent) : QWidget(parent)
{
    resize(metrics::pickerSize);
}

BFColorPickerPopoverView::~BFColorPickerPopoverView()
{
    // The content is only borrowed and must not be deleted with the host.
    if (m_colorPanelView && m_colorPanelView->parentWidget() == this)
        m_colorPanelView->setParent(nullptr);
}

void BFColorPickerPopoverView::setTabBar(QWidget *tabs)
{
    m_tabBar = tabs;
    tabs->setParent(this);
    layOut();
}

void BFColorPickerPopoverView::setColorPanelView(PickerContent *content)
{
    m_colorPanelView = content;
    content->setParent(this);
    layOut();
    content->show();
}

void BFColorPickerPopoverView::layOut()
{
    if (m_tabBar)
        m_tabBar->setGeometry(0, 0, width(), metrics::pickerTabBarHeight);
    if (m_colorPanelView && m_colorPanelView->parentWidget() == this)
        m_colorPanelView->setGeometry(rect().adjusted(0, metrics::pickerTabBarHeight, 0, 0));
}

void BFColorPickerPopoverView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    BFColorPickerPopover *popover = BFColorPickerPopover::sharedPopover();
    m_originalWindowOrigin = popover->windowOrigin();
    m_originalMouseOffset = flippedOnScreen(event->globalPosition()) - popover->windowOrigin();
    m_dragging = true;
}

void BFColorPickerPopoverView::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_dragging)
        return;
    BFColorPickerPopover *popover = BFColorPickerPopover::sharedPopover();
    const QPointF origin = popover->windowOrigin();
    const QPointF mouseInWindow = flippedOnScreen(event->globalPosition()) - origin;
    popover->setWindowOrigin(origin + (mouseInWindow - m_originalMouseOffset));
    // Uses the window's position before this step, so that the arrow is one step behind the drag.
    popover->setShouldHideAnchor(tearsOff(dragDistance(m_originalWindowOrigin, origin)));
}

void BFColorPickerPopoverView::mouseReleaseEvent(QMouseEvent *event)
{
    if (!m_dragging || event->button() != Qt::LeftButton)
        return;
    m_dragging = false;
    BFColorPickerPopover *popover = BFColorPickerPopover::sharedPopover();
    if (tearsOff(dragDistance(m_originalWindowOrigin, popover->windowOrigin())))
        popover->tearOff();
    else
        popover->animateWindowOriginTo(m_originalWindowOrigin);
    popover->setShouldHideAnchor(false);
}

void BFColorPickerPopoverView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    layOut();
}

} // namespace lumora
