// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

class QWidget;

namespace lumora
{

class BFIconTabBar;
class ColorPanel;

/// The ways in which the picker lets choose a color, in the order of its tabs.
enum class PickerMode { Wheel, Sliders, Palettes, Recent };

/// What the picker's tabs know of a mode.
struct PickerModeItem
{
    PickerMode mode;
    QString identifier; ///< names the mode in code, whatever the language
    QString image;      ///< the name of its picture
    QString toolTip;
};

/// Every mode; the texts are those of the language installed at the time of the call.
QList<PickerModeItem> pickerModes();

/// A bar with one tab for each of the panel's modes, its current one selected, that follows the panel's mode.
BFIconTabBar *makePickerTabs(ColorPanel &panel, QWidget *parent);

/// Performs the action of the panel's item at the selected tab, if one is selected.
void performSelectedTab(const BFIconTabBar &tabs, ColorPanel &panel);

} // namespace lumora
