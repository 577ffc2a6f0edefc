// SPDX-License-Identifier: MIT
#pragma once

#include "color/spaces/WideColor.h"

#include <QLatin1StringView>
#include <QString>

#include <span>

namespace lumora
{

/// The platform of a form; users can list the forms of their own platform first.
enum class ColorPlatform { Apple, Android, Flutter, Web, Qt, DotNet };

/// One form of writing a color. Command line, pane and reader loop over the table of these.
struct ColorForm
{
    /// The name on the command line and the key in JSON.
    QLatin1StringView name;
    /// The name of the language or library for people; a proper name, the same in every language.
    QLatin1StringView title;
    ColorPlatform platform = {};
    /// The form with a place for each value; see FormValues.h for their names.
    QLatin1StringView text;
    /// The same for Display P3; empty if the form has only sRGB, or can hold any color.
    QLatin1StringView displayP3Text;
    /// True when `text` can hold colors outside sRGB.
    bool showsAnyGamut = false;
};

/// The platform's own name.
QLatin1StringView platformName(ColorPlatform platform);

/// All forms, in the order of listing.
std::span<const ColorForm> colorForms();

/// The form with the name; null if there is none.
const ColorForm *colorFormNamed(QStringView name);

/// The color in the form. A color outside sRGB is clipped, unless the form holds any gamut.
QString formText(const ColorForm &form, const WideColor &color);

/// The color in the form's Display P3 variant; empty if there is none.
QString displayP3FormText(const ColorForm &form, const WideColor &color);

} // namespace lumora
