// SPDX-License-Identifier: MIT
#pragma once

#include "PopoverPlatform.h"
#include "SFBPopoverWindowFrame.h"

#include <QGuiApplication>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <optional>

namespace lumora
{

/// The borderless window of a popover. It carries the frame view, which carries the content view.
///
/// `frame()` is the popover's frame on screen, in points, y upwards from the primary screen's lower edge. The widget
/// itself is larger by SFBPopoverWindowFrame::shadowMargin on every side; mouse events pass through that band.
class SFBPopoverWindow : public QWidget
{
    Q_OBJECT

public:
    /// A hidden window without content whose content rectangle is the given one.
    explicit SFBPopoverWindow(const QRectF &contentRect = {},
                              const PopoverPlatform &platform = popoverPlatform(QGuiApplication::platformName()));
    ~SFBPopoverWindow() override;

    SFBPopoverWindowFrame *popoverWindowFrame() const { return m_frameView; }
    QWidget *contentView() const { return m_contentView; }
    /// Resizes the window around the view. The window owns the view and deletes the previous one.
    void setContentView(QWidget *view);
    /// Resizes the window around a content of the size. A shown popover keeps its arrow's tip in place.
    void setContentSize(const QSizeF &size);

    QRectF contentRectForFrameRect(const QRectF &frameRect) const;
    QRectF frameRectForContentRect(const QRectF &contentRect) const;
    QRectF frame() const { return m_frame; }
    void setFrame(const QRectF &frame);
    void setFrameOrigin(const QPointF &origin);
    /// Bounds for the frame's size when the user resizes it.
    QSizeF minSize() const { return m_minSize; }
    void setMinSize(const QSizeF &size) { m_minSize = size; }
    QSizeF maxSize() const { return m_maxSize; }
    void setMaxSize(const QSizeF &size) { m_maxSize = size; }
    /// The arrow's place on screen, y upwards.
    QPointF attachmentPoint() const;

    bool canBecomeKeyWindow() const { return true; }
    bool canBecomeMainWindow() const { return false; }
    const PopoverPlatform &platform() const { return m_platform; }

    /// The opacity of the whole popover, 0 to 1.
    qreal alphaValue() const { return m_alphaValue; }
    void setAlphaValue(qreal alpha);

    /// Shows the window above the parent, which may be null. `takingKeyboard` sets whether it asks the system for the
    /// keyboard.
    void orderFront(QWidget *parentWindow, bool takingKeyboard);
    void orderOut();
    /// The window above which it is shown; null while it is hidden.
    QWidget *parentWindow() const { return m_parentWindow; }

    PopoverPosition popoverPosition() const { return m_frameView->popoverPosition(); }
    void setPopoverPosition(PopoverPosition position);
    qreal distance() const { return m_frameView->distance(); }
    void setDistance(qreal distance);
    QColor borderColor() const { return m_frameView->borderColor(); }
    void setBorderColor(const QColor &color);
    qreal borderWidth() const { return m_frameView->borderWidth(); }
    void setBorderWidth(qreal width);
    qreal cornerRadius() const { return m_frameView->cornerRadius(); }
    void setCornerRadius(qreal radius);
    bool drawsArrow() const { return m_frameView->drawsArrow(); }
    void setDrawsArrow(bool draws);
    qreal arrowWidth() const { return m_frameView->arrowWidth(); }
    void setArrowWidth(qreal width);
    qreal arrowHeight() const { return m_frameView->arrowHeight(); }
    void setArrowHeight(qreal height);
    bool drawRoundCornerBesideArrow() const { return m_frameView->drawRoundCornerBesideArrow(); }
    void setDrawRoundCornerBesideArrow(bool round);
    qreal viewMargin() const { return m_frameView->viewMargin(); }
    void setViewMargin(qreal margin);
    QColor popoverBackgroundColor() const { return m_frameView->backgroundColor(); }
    void setPopoverBackgroundColor(const QColor &color);
    bool movable() const { return m_frameView->movable(); }
    void setMovable(bool movable);
    bool resizable() const { return m_frameView->resizable(); }
    void setResizable(bool resizable);

signals:
    /// Escape was pressed, and the content did not use it.
    void canceled();
    /// The window was hidden, for any reason; `parentWindow()` is still valid.
    void orderedOut();
    /// The user dragged it away from its anchor.
    void draggedAway();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void keepContentRectWhile(const std::function<void()> &changing);
    void placeWidget();
    void placeContentView();
    void updateShape();
    QPixmap pictureBelow() const;
    void moveByDrag(const QPointF &travel);
    void resizeByDrag(const QPointF &travel, const QPointF &corner);
    void dragTo(const QRectF &frame);
    void endDrag();

    PopoverPlatform m_platform;
    SFBPopoverWindowFrame *m_frameView = nullptr;
    QPointer<QWidget> m_contentView;
    QPointer<QWidget> m_parentWindow;
    QRectF m_frame;
    QRectF m_frameBeforeDrag;
    /// The position of a drag that moves the window only when it ends.
    std::optional<QRectF> m_dragTarget;
    QSizeF m_minSize;
    QSizeF m_maxSize{QWIDGETSIZE_MAX, QWIDGETSIZE_MAX};
    qreal m_alphaValue = 1;
    bool m_remapping = false;
};

} // namespace lumora
