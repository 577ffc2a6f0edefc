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

/// Shows the shared color picker in a balloon beside a color well. It closes when the user goes on working in the
/// well's window and stays when another program comes to the front; dragged off, it becomes the floating panel. Under
/// Wayland it cannot follow the drag: only its arrow shows that it will come off, and the compositor places the panel.
class BFColorPickerPopover final : public QObject
{
    Q_OBJECT

public:
    using Action = std::function<void(BFColorPickerPopover *)>;

    /// The program's only one, made when it is first asked for.
    static BFColorPickerPopover *sharedPopover();

    BFColorPickerPopover();
    ~BFColorPickerPopover() override;

    /// The panel's color while the popover is shown.
    RgbaColor color() const;
    void setColor(const RgbaColor &color);
    /// Who hears of each color picked here, and how. The action is not performed for a target that is gone.
    QObject *target() const { return m_target; }
    const Action &action() const { return m_action; }
    void setTarget(QObject *target, Action action);
    /// The panel whose content is shown; null before the first showing.
    ColorPanel *colorPanel() const;
    ColorWell *colorWell() const;
    void setColorWell(ColorWell *well);

    bool animates() const { return m_animates; }
    void setAnimates(bool animates) { m_animates = animates; }
    /// True from the showing on until it begins to close.
    bool isShown() const { return m_shown; }

    /// Opens beside the rectangle of the view, on the edge where there is room, else on another.
    void showRelativeToRect(const QRect &rect, QWidget *ofView, Qt::Edge preferredEdge);
    void close();
    void closeWithoutAnimation();
    /// The Escape key.
    void cancelOperation() { close(); }
    void closeAndDeactivateColorWell(bool deactivate, bool removeTarget, bool removeObserver);
    void deactivateColorWell();
    void removeTargetAndAction();
    /// Asked before the popover closes by itself; agrees, after letting go of well and target.
    bool delegatePopoverShouldClose();

    /// The balloon's window origin, in points, y upwards.
    QPointF windowOrigin() const { return m_windowOrigin; }
    /// Moves the balloon at once.
    void setWindowOrigin(const QPointF &origin);
    /// Moves the balloon back to where it points at the well.
    void animateWindowOriginTo(const QPointF &origin);
    bool shouldHideAnchor() const { return m_shouldHideAnchor; }
    void setShouldHideAnchor(bool hide);
    /// Goes on in the floating panel, whose content takes the place where it is now.
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
