// SPDX-License-Identifier: MIT
#pragma once

#include "color/forms/ColorForm.h"

#include <vector>

namespace lumora
{

/// The gamut of the shown forms: sRGB, or Display P3 for every form that has it.
enum class FormGamut { Srgb, DisplayP3 };

/// One form of a color as the list shows it.
struct FormRow
{
    const ColorForm *form;
    QString text;     ///< what is copied
    QString srgbText; ///< the sRGB form beside a Display P3 text; otherwise empty
    /// Whether the row's sRGB form is another color, because sRGB cannot show this one.
    bool isClipped = false;
};

/// Every form of the color, those of the platform first, otherwise in the table's order.
std::vector<FormRow> formRows(const WideColor &color, ColorPlatform first, FormGamut gamut);

/// The color as a field shows it: "#rrggbb", with two more digits if it is translucent; a Display P3 text if sRGB
/// cannot show it.
QString fieldText(const WideColor &color);

} // namespace lumora
