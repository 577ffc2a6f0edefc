// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/popover/ViewController.h"

#include <QPointer>

namespace lumora
{

class BFColorPickerPopoverView;
class BFIconTabBar;
class ColorPanel;
class PickerContent;

/// The popover's content: the shared panel's modes as tabs, and below them the panel's content view, which it borrows.
class BFColorPickerViewController final : public ViewController
{
    Q_OBJECT

public:
    /// Takes the content from the floating panel, which is hidden.
    BFColorPickerViewController();

    ColorPanel *colorPanel() const { return m_colorPanel; }
    BFIconTabBar *tabbar() const { return m_tabbar; }
    /// The panel's content view while it is shown here, else null.
    PickerContent *colorPanelView() const;
    BFColorPickerPopoverView *popoverView() const;

    /// Switches the panel to the selected tab's mode.
    void tabBarChangedSelection();

private:
    void loadView();

    ColorPanel *m_colorPanel = nullptr;
    BFIconTabBar *m_tabbar = nullptr;
};

} // namespace lumora
