// SPDX-License-Identifier: MIT
#pragma once

#include "color/spaces/WideColor.h"

#include <QLatin1StringView>
#include <QStringView>

#include <optional>

namespace lumora
{

/// A color understood, and as what.
struct ColorReading
{
    WideColor color;
    /// A form's name, "css-name" for a named color, "css-oklab" and the like for what is read but never written.
    QLatin1StringView notation;
};

/// Reads a color as programming languages write it, by a table of what each of them allows: order and names of the
/// arguments as written there, white space anywhere between words, numbers within their range. Nothing may follow but a
/// semicolon.
std::optional<ColorReading> colorFromCode(QStringView text);

/// Reads # and three, four, six or eight digits with the opacity, where there is one, at the given end.
enum class AlphaPlace { First, Last };
std::optional<WideColor> colorFromHash(QStringView text, AlphaPlace place);

} // namespace lumora
