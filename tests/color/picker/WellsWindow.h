// SPDX-License-Identifier: MIT
#pragma once

#include "color/picker/BFColorPickerPopover.h"
#include "color/picker/BFColorPickerPopoverView.h"
#include "color/picker/BFColorPickerViewController.h"
#include "color/picker/BFPopoverColorWell.h"
#include "color/picker/ColorPanel.h"
#include "color/picker/PickerContent.h"
#include "widgets/popover/SFBPopover.h"
#include "widgets/tabs/BFIconTabBar.h"

#include <QMouseEvent>
#include <QTest>

#include <memory>

namespace lumora
{

/// A window with two color wells, and functions that click them and drag their popover. One for each test: its
/// destructor resets popover and panel.
class WellsWindow
{
public:
    static constexpr RgbaColor first{0.2F, 0.4F, 0.6F, 1.0F};
    static constexpr RgbaColor second{0.8F, 0.1F, 0.3F, 1.0F};
    static constexpr RgbaColor picked{0.0F, 1.0F, 0.0F, 1.0F};

    WellsWindow()
    {
        window.setGeometry(100, 60, 300, 300);
        well.setGeometry(20, 100, 80, 40);
        well.setColor(first);
        other.setGeometry(20, 200, 80, 40);
        other.setColor(second);
        elsewhere.setGeometry(200, 10, 50, 50);
        window.show();
        popover()->setAnimates(false);
    }
    ~WellsWindow()
    {
        if (popover()->isShown())
            popover()->close();
        panel()->hide();
        ColorWell::deactivateAll();
        popover()->removeTargetAndAction();
        panel()->setMode(PickerMode::Wheel);
    }

    static BFColorPickerPopover *popover() { return BFColorPickerPopover::sharedPopover(); }
    static ColorPanel *panel() { return ColorPanel::sharedColorPanel(); }
    static BFColorPickerPopoverView *popoverView() { return popover()->contentViewController()->popoverView(); }
    static bool popoverHostsContent() { return popover()->contentViewController()->colorPanelView() != nullptr; }

    static void click(QWidget &widget, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mouseClick(&widget, Qt::LeftButton, modifiers);
    }

    /// Drags the popover by its background as a mouse does, in several steps, and lets go.
    static void drag(const QPoint &travel, bool letGo = true)
    {
        BFColorPickerPopoverView *view = popoverView();
        const QPoint start = view->mapToGlobal(QPoint(view->width() - 10, 17));
        send(QEvent::MouseButtonPress, start, Qt::LeftButton);
        send(QEvent::MouseMove, start + travel / 2, Qt::LeftButton);
        send(QEvent::MouseMove, start + travel, Qt::LeftButton);
        if (letGo)
            send(QEvent::MouseButtonRelease, start + travel, Qt::NoButton);
    }
    /// One event of the mouse to the popover's background, in screen coordinates.
    static void send(QEvent::Type type, const QPoint &global, Qt::MouseButtons buttons)
    {
        BFColorPickerPopoverView *view = popoverView();
        const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, QPointF(view->mapFromGlobal(global)), QPointF(global), button, buttons, {});
        QCoreApplication::sendEvent(view, &event);
    }

    /// Opens the popover for the first well and detaches it.
    void openFloatingPanel()
    {
        click(well);
        drag({80, 0});
    }

    QWidget window;
    BFPopoverColorWell well{&window};
    BFPopoverColorWell other{&window};
    QWidget elsewhere{&window};
};

} // namespace lumora
