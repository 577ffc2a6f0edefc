// SPDX-License-Identifier: MIT
#pragma once

#include "color/spaces/WideColor.h"

#include <QLatin1StringView>
#include <QStringView>

#include <optional>

namespace lumora
{

/// A color that was read, and its form.
struct ColorReading
{
    WideColor color;
    /// The form's name; "css-name" for a named color, "css-oklab" and the like for forms that are read but never
    /// written.
    QLatin1StringView notation;
};

/// Reads a color as programming languages write it, by a table of their forms: arguments in the table's order and with
/// its names, white space anywhere between words, numbers within their range. Only a semicolon may follow.
std::optional<ColorReading> colorFromCode(QStringView text);

/// Reads # and three, four, six or eight digits; the opacity, if there is one, is at the given end.
enum class AlphaPlace { First, Last };
std::optional<WideColor> colorFromHash(QStringView text, AlphaPlace place);

} // namespace lumora
