// SPDX-License-Identifier: MIT
#pragma once

#include "PopoverAnchor.h"
#include "SFBPopoverWindow.h"
#include "ViewController.h"

#include <QObject>
#include <QPointer>

#include <memory>

class QAbstractAnimation;

namespace lumora
{

class EasedAnimation;
class PopoverKeyStatus;

/// Shows any view in a balloon that points at a place in a parent window. It fades in and out, follows its parent, and
/// closes by itself if so set. Points are in the parent window's base coordinates: from its lower left corner, y
/// upwards, in points; without a parent they are screen coordinates.
class SFBPopover : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool visible READ isVisible)
    Q_PROPERTY(bool animates READ animates WRITE setAnimates)

public:
    /// A popover without content.
    SFBPopover();
    /// Wraps the view in a plain controller. The popover owns the view.
    explicit SFBPopover(QWidget *contentView, QObject *parent = nullptr);
    /// The popover owns the controller and its view.
    explicit SFBPopover(ViewController *contentViewController, QObject *parent = nullptr,
                        const PopoverPlatform &platform = popoverPlatform(QGuiApplication::platformName()));
    ~SFBPopover() override;

    ViewController *contentViewController() const { return m_contentViewController; }
    void setContentViewController(ViewController *controller);
    /// The window; it lives as long as the popover.
    SFBPopoverWindow *popoverWindow() const { return m_window.get(); }

    /// Ignored while the popover is visible, also while it fades out. `window` may be any widget of the parent window,
    /// or null.
    void displayPopoverInWindow(QWidget *window, const QPointF &atPoint, bool chooseBestLocation = false);
    /// Opens beside a control and stays beside it, on the screen, when the control moves. Ignored as above.
    void displayPopover(const PopoverTarget &target);
    void movePopoverToPoint(const QPointF &point);
    PopoverPosition bestPositionInWindow(QWidget *window, const QPointF &atPoint) const;
    /// True from the display on until the fade-out has ended.
    bool isVisible() const;
    /// Whether it is the window in which the user works, with or without the keyboard.
    bool isKeyWindow() const;

    bool animates() const { return m_animates; }
    void setAnimates(bool animates) { m_animates = animates; }
    bool closesWhenPopoverResignsKey() const { return m_closesWhenPopoverResignsKey; }
    void setClosesWhenPopoverResignsKey(bool closes) { m_closesWhenPopoverResignsKey = closes; }
    bool closesWhenApplicationBecomesInactive() const { return m_closesWhenApplicationBecomesInactive; }
    void setClosesWhenApplicationBecomesInactive(bool closes) { m_closesWhenApplicationBecomesInactive = closes; }

    PopoverPosition position() const { return m_window->popoverPosition(); }
    void setPosition(PopoverPosition position) { m_window->setPopoverPosition(position); }
    qreal distance() const { return m_window->distance(); }
    void setDistance(qreal distance) { m_window->setDistance(distance); }
    QColor borderColor() const { return m_window->borderColor(); }
    void setBorderColor(const QColor &color) { m_window->setBorderColor(color); }
    qreal borderWidth() const { return m_window->borderWidth(); }
    void setBorderWidth(qreal width) { m_window->setBorderWidth(width); }
    qreal cornerRadius() const { return m_window->cornerRadius(); }
    void setCornerRadius(qreal radius) { m_window->setCornerRadius(radius); }
    bool drawsArrow() const { return m_window->drawsArrow(); }
    void setDrawsArrow(bool draws) { m_window->setDrawsArrow(draws); }
    qreal arrowWidth() const { return m_window->arrowWidth(); }
    void setArrowWidth(qreal width) { m_window->setArrowWidth(width); }
    qreal arrowHeight() const { return m_window->arrowHeight(); }
    void setArrowHeight(qreal height) { m_window->setArrowHeight(height); }
    bool drawRoundCornerBesideArrow() const { return m_window->drawRoundCornerBesideArrow(); }
    void setDrawRoundCornerBesideArrow(bool round) { m_window->setDrawRoundCornerBesideArrow(round); }
    qreal viewMargin() const { return m_window->viewMargin(); }
    void setViewMargin(qreal margin) { m_window->setViewMargin(margin); }
    QColor backgroundColor() const { return m_window->popoverBackgroundColor(); }
    void setBackgroundColor(const QColor &color) { m_window->setPopoverBackgroundColor(color); }
    bool movable() const { return m_window->movable(); }
    void setMovable(bool movable) { m_window->setMovable(movable); }
    bool resizable() const { return m_window->resizable(); }
    void setResizable(bool resizable) { m_window->setResizable(resizable); }

public slots:
    /// Ignored while the popover is hidden or already fading out.
    void closePopover(QObject *sender = nullptr);

signals:
    void displayed();
    /// The popover begins to close, fading out or at once; it is still visible.
    void closing();
    void closed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void windowDidResignKey();
    void applicationDidResignActive();
    void animationDidStop(QAbstractAnimation *animation, bool finished);
    void windowDidOrderOut();
    void applicationStateChanged(Qt::ApplicationState state);
    void fadeTo(qreal alpha);
    void takeContentSize();
    void show(QWidget *parentWindow);
    void placeAtAnchor();
    void parentMoved();
    void parentLaidOut();

    std::unique_ptr<SFBPopoverWindow> m_window;
    PopoverKeyStatus *m_keyStatus = nullptr;
    EasedAnimation *m_fade = nullptr;
    QPointer<ViewController> m_contentViewController;
    PopoverAnchor m_anchor;
    QPoint m_parentPosition;
    bool m_animates = true;
    bool m_closesWhenPopoverResignsKey = false;
    bool m_closesWhenApplicationBecomesInactive = false;
    bool m_closing = false;
    bool m_draggedAway = false;
    bool m_applicationWasActive = false;
};

} // namespace lumora
