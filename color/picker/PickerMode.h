// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

class QWidget;

namespace lumora
{

class BFIconTabBar;
class ColorPanel;

/// The modes of the picker, in the order of its tabs.
enum class PickerMode { Wheel, Sliders, Palettes, Recent };

/// The facts of a mode for the picker's tabs.
struct PickerModeItem
{
    PickerMode mode;
    QString identifier; ///< the name of the mode in code, the same in every language
    QString image;      ///< the name of its picture
    QString toolTip;
};

/// All modes; the texts are in the language that is installed at the time of the call.
QList<PickerModeItem> pickerModes();

/// A bar with one tab for each of the panel's modes. It selects the current mode and follows its changes.
BFIconTabBar *makePickerTabs(ColorPanel &panel, QWidget *parent);

/// Performs the action of the panel's item at the selected tab, if one is selected.
void performSelectedTab(const BFIconTabBar &tabs, ColorPanel &panel);

} // namespace lumora
