// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractScrollArea>
#include <QColor>
#include <QPointer>

namespace lumora
{

class ITSidebar;

/// How a scroll view's knob is drawn to stand out from what it lies on.
enum class ScrollerKnobStyle : int { Default = 0, Dark = 1, Light = 2 };

/// The strip in which the sidebar stands. Scrolls it with the wheel and to the selected item where the strip is too
/// low for all of them.
class SidebarScrollView final : public QAbstractScrollArea
{
    Q_OBJECT

public:
    explicit SidebarScrollView(QWidget *parent = nullptr);

    /// Puts the sidebar into the strip and owns it.
    void setDocumentView(ITSidebar *sidebar);
    /// Where the sidebar's upper left corner stands while nothing is scrolled.
    void setDocumentOrigin(QPoint origin);
    /// Scrolls as little as brings the rectangle (in the sidebar's coordinates) into view.
    void scrollTo(const QRect &rectangle);
    /// Takes note of the sidebar's present size.
    void updateScrollRange();

    QColor backgroundColor() const { return m_backgroundColor; }
    void setBackgroundColor(const QColor &color);
    ScrollerKnobStyle scrollerKnobStyle() const { return m_scrollerKnobStyle; }
    void setScrollerKnobStyle(ScrollerKnobStyle style);
    /// The part of the strip that shows the sidebar.
    QSize clipViewSize() const { return viewport()->size(); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {0, 0}; }

signals:
    /// The visible part moved or changed its size.
    void clipViewBoundsChanged();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QPointer<ITSidebar> m_documentView;
    QPoint m_documentOrigin;
    QColor m_backgroundColor = Qt::white;
    ScrollerKnobStyle m_scrollerKnobStyle = ScrollerKnobStyle::Default;
};

} // namespace lumora
