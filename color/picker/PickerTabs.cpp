// SPDX-License-Identifier: MIT
#include "PickerTabs.h"

#include "ColorPanel.h"
#include "widgets/style/NamedImage.h"
#include "widgets/tabs/BFIconTabBar.h"

namespace lumora
{

BFIconTabBar *makePickerTabs(ColorPanel &panel, QWidget *parent)
{
    auto *tabs = new BFIconTabBar(parent);
    QList<BFIconTabBarItem *> items;
    int selected = 0;
    for (const ColorPanel::ToolbarItem &item : panel.toolbarItems()) {
        if (item.mode.identifier == panel.selectedItemIdentifier())
            selected = static_cast<int>(items.size());
        items.append(BFIconTabBarItem::itemWithIcon(NamedImage(item.mode.image).icon(), item.mode.toolTip));
    }
    tabs->setItems(items);
    tabs->selectIndex(selected);
    tabs->setAccessibleName(panel.windowTitle());
    QObject::connect(&panel, &ColorPanel::modeChanged, tabs,
                     [tabs](PickerMode mode) { tabs->selectIndex(static_cast<int>(mode)); });
    return tabs;
}

void performSelectedTab(const BFIconTabBar &tabs, ColorPanel &panel)
{
    const int index = tabs.selectedIndex();
    if (index >= 0)
        panel.toolbarItems().at(index).action(panel);
}

} // namespace lumora
