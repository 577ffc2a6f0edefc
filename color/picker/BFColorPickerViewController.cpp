// SPDX-License-Identifier: MIT
#include "BFColorPickerViewController.h"

#include "BFColorPickerPopoverView.h"
#include "ColorPanel.h"
#include "ColorWell.h"
#include "PickerContent.h"
#include "PickerMode.h"
#include "widgets/tabs/BFIconTabBar.h"

namespace lumora
{

BFColorPickerViewController::BFColorPickerViewController() : ViewController(new BFColorPickerPopoverView)
{
    loadView();
}

void BFColorPickerViewController::loadView()
{
    if (ColorPanel::sharedColorPanelExists() && ColorPanel::sharedColorPanel()->isVisible()) {
        ColorPanel::sharedColorPanel()->orderOut();
        ColorWell::deactivateAll();
    }
    m_colorPanel = ColorPanel::sharedColorPanel();
    m_colorPanel->setShowsAlpha(true);

    m_tabbar = makePickerTabs(*m_colorPanel, popoverView());
    popoverView()->setTabBar(m_tabbar);
    connect(m_tabbar, &BFIconTabBar::action, this, &BFColorPickerViewController::tabBarChangedSelection);
    popoverView()->setColorPanelView(m_colorPanel->contentView());
}

PickerContent *BFColorPickerViewController::colorPanelView() const
{
    PickerContent *content = m_colorPanel->contentView();
    return content != nullptr && content->parentWidget() == view() ? content : nullptr;
}

BFColorPickerPopoverView *BFColorPickerViewController::popoverView() const
{
    return static_cast<BFColorPickerPopoverView *>(view());
}

void BFColorPickerViewController::tabBarChangedSelection()
{
    performSelectedTab(*m_tabbar, *m_colorPanel);
}

} // namespace lumora
