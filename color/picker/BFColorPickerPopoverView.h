// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QPointer>
#include <QWidget>

namespace lumora
{

class PickerContent;

/// The popover's background, 250 × 400 points. Dragged where no control is, it takes the popover along, and far enough
/// away off the well.
class BFColorPickerPopoverView final : public QWidget
{
    Q_OBJECT

public:
    explicit BFColorPickerPopoverView(QWidget *parent = nullptr);
    ~BFColorPickerPopoverView() override;

    /// Where the popover's window was when the drag began, y upwards.
    QPointF originalWindowOrigin() const { return m_originalWindowOrigin; }
    /// Where in the window the pointer went down.
    QPointF originalMouseOffset() const { return m_originalMouseOffset; }
    bool isDragging() const { return m_dragging; }

    /// Puts the tabs across the top.
    void setTabBar(QWidget *tabs);
    /// Puts the picker below the strip of tabs. It stays the panel's: it does not go with the view.
    void setColorPanelView(PickerContent *content);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void layOut();

    QPointer<QWidget> m_tabBar;
    QPointer<PickerContent> m_colorPanelView;
    QPointF m_originalWindowOrigin;
    QPointF m_originalMouseOffset;
    bool m_dragging = false;
};

} // namespace lumora
