// SPDX-License-Identifier: MIT
#pragma once

namespace lumora
{

/// Chooses the toolkit's style that looks the same on every desktop. Call it before the application object is made.
void applyAppStyle();

/// Gives the platform's own controls (lists, text areas, menus, dialogs, tool tips) the program's colors and font,
/// whatever the desktop's theme. Call it after the application object is made.
void applyAppColors();

} // namespace lumora
