// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace lumora
{

class BFIconTabBar;
class ColorPanel;

/// A bar with one tab for each of the panel's modes, its current one selected, that follows the panel's mode.
BFIconTabBar *makePickerTabs(ColorPanel &panel, QWidget *parent);

/// Performs the action of the panel's item at the selected tab, if one is selected.
void performSelectedTab(const BFIconTabBar &tabs, ColorPanel &panel);

} // namespace lumora
