// SPDX-License-Identifier: MIT
#pragma once

#include "RgbaColor.h"

#include <array>

namespace lumora
{

/// What is known of a tool without its window: names, text keys, image names and colors. The command line, the window,
/// the palette and the color picker all read the one table below; a tool's index is its place in that table.
struct ToolFacts
{
    const char *name = nullptr;         ///< on the command line and in the desktop's menu: `lumora --tool=NAME`
    const char *sidebarImage = nullptr; ///< selected or not
    const char *headerKey = nullptr;
    const char *helpTitleKey = nullptr;
    const char *helpTextKey = nullptr;
    const char *helpIcon = nullptr;
    RgbaColor color;       ///< fills header and sidebar
    RgbaColor borderColor; ///< its shade, for their borders
    /// The ending (without the dot, case-sensitive) of the files that this tool opens when the desktop asks the
    /// application to open them; nullptr for none.
    const char *openedExtension = nullptr;
};

enum class ToolIndex { Icons, Placeholders, Resizer, Color, Devices, Validator };

/// All tools, in the order of the sidebar.
inline constexpr std::array<ToolFacts, 6> toolFacts = {{
    {"icons",
     "icon_icons",
     "APP_ICONS",
     "HELP_ICONS",
     "HELP_ICONS_TEXT",
     "help_icon_icons",
     {0.204F, 0.596F, 0.859F},
     {0.161F, 0.502F, 0.725F},
     "png"},
    {"placeholders",
     "icon_placeholders",
     "APP_PLACEHOLDER",
     "HELP_PLACEHOLDER",
     "HELP_PLACEHOLDER_TEXT",
     "help_icon_placeholder",
     {0.180F, 0.800F, 0.443F},
     {0.153F, 0.682F, 0.376F}},
    {"resizer",
     "icon_resizer",
     "APP_RESIZER",
     "HELP_RESIZER",
     "HELP_RESIZER_TEXT",
     "help_icon_resizer",
     {0.906F, 0.298F, 0.235F},
     {0.753F, 0.224F, 0.169F}},
    {"color",
     "icon_colors",
     "APP_COLOR",
     "HELP_COLOR",
     "HELP_COLOR_TEXT",
     "help_icon_color",
     {0.608F, 0.349F, 0.714F},
     {0.557F, 0.267F, 0.678F}},
    {"devices",
     "icon_devices",
     "APP_DEVICES",
     "HELP_DEVICES",
     "HELP_DEVICES_TEXT",
     "help_icon_devices",
     {0.902F, 0.494F, 0.133F},
     {0.827F, 0.329F, 0.000F}},
    {"validator",
     "icon_validater_active",
     "APP_VALIDATER",
     "HELP_VALIDATER",
     "HELP_VALIDATER_TEXT",
     "help_icon_validater",
     {0.945F, 0.769F, 0.059F},
     {0.953F, 0.612F, 0.071F},
     "ipa"},
}};

constexpr const ToolFacts &factsOf(ToolIndex tool)
{
    return toolFacts[static_cast<std::size_t>(tool)];
}

} // namespace lumora
