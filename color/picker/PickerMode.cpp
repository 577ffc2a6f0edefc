// SPDX-License-Identifier: MIT
#include "PickerMode.h"

#include "ColorPanel.h"
#include "widgets/style/NamedImage.h"
#include "widgets/tabs/BFIconTabBar.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace lumora
{

QList<PickerModeItem> pickerModes()
{
    return {
        {PickerMode::Wheel, u"wheel"_s, u"picker_wheel"_s, qtTrId("COLOR_MODE_WHEEL")},
        {PickerMode::Sliders, u"sliders"_s, u"picker_sliders"_s, qtTrId("COLOR_MODE_SLIDERS")},
        {PickerMode::Palettes, u"palettes"_s, u"picker_palettes"_s, qtTrId("COLOR_MODE_PALETTE")},
        {PickerMode::Recent, u"recent"_s, u"picker_recent"_s, qtTrId("COLOR_MODE_RECENT")},
    };
}

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
