// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractScrollArea>
#include <QColor>
#include <QPointer>

namespace lumora
{

class ITSidebar;

/// The style of a scroll view's knob, chosen to show on its background.
enum class ScrollerKnobStyle : int { Default = 0, Dark = 1, Light = 2 };

/// The strip that contains the sidebar. If it is too low for all items, it scrolls by the wheel and to the selected
/// item.
class SidebarScrollView final : public QAbstractScrollArea
{
    Q_OBJECT

public:
    explicit SidebarScrollView(QWidget *parent = nullptr);

    /// Puts the sidebar into the strip and owns it.
    void setDocumentView(ITSidebar *sidebar);
    /// The place of the sidebar's upper left corner without scrolling.
    void setDocumentOrigin(QPoint origin);
    /// Scrolls only as far as needed to show the rectangle (in the sidebar's coordinates).
    void scrollTo(const QRect &rectangle);
    /// Updates after a change of the sidebar's size.
    void updateScrollRange();

    QColor backgroundColor() const { return m_backgroundColor; }
    void setBackgroundColor(const QColor &color);
    ScrollerKnobStyle scrollerKnobStyle() const { return m_scrollerKnobStyle; }
    void setScrollerKnobStyle(ScrollerKnobStyle style);
    /// The size of the visible part.
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
