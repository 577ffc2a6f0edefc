// SPDX-License-Identifier: MIT
#include "SidebarScrollView.h"

#include "ITSidebar.h"

#include <QPainter>
#include <QScrollBar>

namespace lumora
{

SidebarScrollView::SidebarScrollView(QWidget *parent) : QAbstractScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
}

void SidebarScrollView::setDocumentView(ITSidebar *sidebar)
{
    m_documentView = sidebar;
    sidebar->setParent(viewport());
    connect(this, &SidebarScrollView::clipViewBoundsChanged, sidebar, &ITSidebar::resizeMatrix);
    sidebar->awakeFromNib();
    sidebar->show();
}

void SidebarScrollView::setDocumentOrigin(QPoint origin)
{
    m_documentOrigin = origin;
    scrollContentsBy(0, 0);
}

void SidebarScrollView::scrollTo(const QRect &rectangle)
{
    QScrollBar *bar = verticalScrollBar();
    if (rectangle.top() < bar->value())
        bar->setValue(rectangle.top());
    else if (rectangle.bottom() >= bar->value() + viewport()->height())
        bar->setValue(rectangle.bottom() + 1 - viewport()->height());
}

void SidebarScrollView::updateScrollRange()
{
    const int documentHeight = m_documentView.isNull() ? 0 : m_documentView->height();
    verticalScrollBar()->setRange(0, std::max(0, documentHeight - viewport()->height()));
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setSingleStep(ITSidebar::defaultCellSize().height() / 2);
}

void SidebarScrollView::setBackgroundColor(const QColor &color)
{
    if (m_backgroundColor == color)
        return;
    m_backgroundColor = color;
    viewport()->update();
}

void SidebarScrollView::setScrollerKnobStyle(ScrollerKnobStyle style)
{
    m_scrollerKnobStyle = style;
}

QSize SidebarScrollView::sizeHint() const
{
    return ITSidebar::defaultCellSize();
}

void SidebarScrollView::resizeEvent(QResizeEvent *)
{
    emit clipViewBoundsChanged();
}

void SidebarScrollView::scrollContentsBy(int, int)
{
    if (!m_documentView.isNull())
        m_documentView->move(m_documentOrigin - QPoint(0, verticalScrollBar()->value()));
    emit clipViewBoundsChanged();
}

void SidebarScrollView::paintEvent(QPaintEvent *)
{
    QPainter(viewport()).fillRect(viewport()->rect(), m_backgroundColor);
}

} // namespace lumora
