// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/RgbaColor.h"

#include <QObject>
#include <QPointer>
#include <QRect>

#include <functional>
#include <memory>

namespace lumora
{

class BFColorPickerViewController;
class ColorPanel;
class ColorWell;
class EasedAnimation;
class SFBPopover;

/// Shows the shared color picker in a balloon beside a color well. It closes when the user continues in the well's
/// window, and stays when another program becomes active. Dragged away, it becomes the floating panel. Under Wayland it
/// cannot follow the drag: only its arrow shows that it will be detached, and the compositor places the panel.
class BFColorPickerPopover final : public QObject
{
    Q_OBJECT

public:
    using Action = std::function<void(BFColorPickerPopover *)>;

    /// The program's only one, made at the first call.
    static BFColorPickerPopover *sharedPopover();

    BFColorPickerPopover();
    ~BFColorPickerPopover() override;

    /// The panel's color while the popover is shown.
    RgbaColor color() const;
    void setColor(const RgbaColor &color);
    /// The object that gets an action for each color that is picked here, and the action. It is not sent once the
    /// target is deleted.
    QObject *target() const { return m_target; }
    const Action &action() const { return m_action; }
    void setTarget(QObject *target, Action action);
    /// The panel whose content is shown; null before the first showing.
    ColorPanel *colorPanel() const;
    ColorWell *colorWell() const;
    void setColorWell(ColorWell *well);

    bool animates() const { return m_animates; }
    void setAnimates(bool animates) { m_animates = animates; }
    /// True from when it is shown until it begins to close.
    bool isShown() const { return m_shown; }

    /// Opens beside the rectangle of the view, on the edge if there is room, else on another.
    void showRelativeToRect(const QRect &rect, QWidget *ofView, Qt::Edge preferredEdge);
    void close();
    void closeWithoutAnimation();
    /// The Escape key.
    void cancelOperation() { close(); }
    void closeAndDeactivateColorWell(bool deactivate, bool removeTarget, bool removeObserver);
    void deactivateColorWell();
    void removeTargetAndAction();
    /// Called before the popover closes by itself. Releases the well and the target, and returns true.
    bool delegatePopoverShouldClose();

    /// The balloon's window origin, in points, y upwards.
    QPointF windowOrigin() const { return m_windowOrigin; }
    /// Moves the balloon at once.
    void setWindowOrigin(const QPointF &origin);
    /// Moves the balloon back to its place at the well.
    void animateWindowOriginTo(const QPointF &origin);
    bool shouldHideAnchor() const { return m_shouldHideAnchor; }
    void setShouldHideAnchor(bool hide);
    /// Continues in the floating panel, with the content at the same place on screen.
    void tearOff();

    BFColorPickerViewController *contentViewController() const;
    SFBPopover *balloon() const { return m_balloon.get(); }

signals:
    void shown();
    void closed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void observeColor(bool observe);
    void panelColorChanged(const RgbaColor &color);
    void balloonClosing();
    void makeBalloon();

    std::unique_ptr<SFBPopover> m_balloon;
    QPointer<BFColorPickerViewController> m_contentViewController;
    QPointer<QWidget> m_parentWindow;
    QPointer<ColorWell> m_colorWell;
    QPointer<QObject> m_target;
    Action m_action;
    EasedAnimation *m_return = nullptr;
    RgbaColor m_color{1.0F, 1.0F, 1.0F, 1.0F};
    QPointF m_windowOrigin;
    bool m_animates = true;
    bool m_shown = false;
    bool m_observing = false;
    bool m_shouldHideAnchor = false;
};

} // namespace lumora
