// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

namespace lumora
{

/// The ways in which the picker lets choose a colour, in the order of its tabs.
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

} // namespace lumora
