// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QPointer>
#include <QWidget>

namespace lumora
{

class PickerContent;

/// The popover's background, 250 × 400 points. A drag beside the controls moves the popover, and detaches it from the
/// well when it is far enough away.
class BFColorPickerPopoverView final : public QWidget
{
    Q_OBJECT

public:
    explicit BFColorPickerPopoverView(QWidget *parent = nullptr);
    ~BFColorPickerPopoverView() override;

    /// The position of the popover's window when the drag began, y upwards.
    QPointF originalWindowOrigin() const { return m_originalWindowOrigin; }
    /// The position of the press in the window.
    QPointF originalMouseOffset() const { return m_originalMouseOffset; }
    bool isDragging() const { return m_dragging; }

    /// Puts the tabs across the top.
    void setTabBar(QWidget *tabs);
    /// Puts the picker below the strip of tabs. The panel still owns it.
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
