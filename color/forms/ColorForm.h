// SPDX-License-Identifier: MIT
#pragma once

#include "color/spaces/WideColor.h"

#include <QLatin1StringView>
#include <QString>

#include <span>

namespace lumora
{

/// Who writes code with a form; people bring the forms of their own platform to the top.
enum class ColorPlatform { Apple, Android, Flutter, Web, Qt, DotNet };

/// One form that a color is written in. All the rest (command line, pane, reader) loops over the table of these.
struct ColorForm
{
    /// The name that the command line and the JSON keys share.
    QLatin1StringView name;
    ColorPlatform platform;
    /// The form with a place for each value; see FormValues.h for their names.
    QLatin1StringView text;
    /// The same for Display P3; empty where the form knows sRGB only, or holds any color as it is.
    QLatin1StringView displayP3Text;
    /// True when `text` shows colors outside sRGB as they are.
    bool showsAnyGamut = false;
};

/// Every form, in the order in which they are listed.
std::span<const ColorForm> colorForms();

/// The form of the name; null where there is none.
const ColorForm *colorFormNamed(QStringView name);

/// The color in the form. One that sRGB can't show is clipped there, unless the form shows any gamut.
QString formText(const ColorForm &form, const WideColor &color);

/// The color in the form's Display P3 variant; empty where it has none.
QString displayP3FormText(const ColorForm &form, const WideColor &color);

} // namespace lumora
