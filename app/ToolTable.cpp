// SPDX-License-Identifier: MIT
#include "ToolTable.h"

#include "color/ColorViewController.h"
#include "devices/DeviceViewController.h"
#include "icons/IconsViewController.h"
#include "placeholders/PlaceholderViewController.h"
#include "resizer/ResizerViewController.h"
#include "validator/ValidaterViewController.h"
#include "widgets/style/Palette.h"

namespace lumora
{

namespace
{

template <typename Controller> std::unique_ptr<ToolViewController> make(const Services &services)
{
    return std::make_unique<Controller>(services);
}

void openIcon(ToolViewController &controller, const QString &path)
{
    static_cast<IconsViewController &>(controller).setIconFromDelegate(path);
}

void openPackage(ToolViewController &controller, const QString &path)
{
    static_cast<ValidaterViewController &>(controller).dropIpaFileFromDelegate(path);
}

} // namespace

std::span<const Tool> toolTable()
{
    static const Tool tools[] = {
        {"icons", "icon_icons", "APP_ICONS", "HELP_ICONS", "HELP_ICONS_TEXT", "help_icon_icons", palette::icons,
         palette::iconsBorder, &make<IconsViewController>, "png", &openIcon},
        {"placeholders", "icon_placeholders", "APP_PLACEHOLDER", "HELP_PLACEHOLDER", "HELP_PLACEHOLDER_TEXT",
         "help_icon_placeholder", palette::placeholders, palette::placeholdersBorder, &make<PlaceholderViewController>},
        {"resizer", "icon_resizer", "APP_RESIZER", "HELP_RESIZER", "HELP_RESIZER_TEXT", "help_icon_resizer",
         palette::resizer, palette::resizerBorder, &make<ResizerViewController>},
        {"color", "icon_colors", "APP_COLOR", "HELP_COLOR", "HELP_COLOR_TEXT", "help_icon_color", palette::color,
         palette::colorBorder, &make<ColorViewController>},
        {"devices", "icon_devices", "APP_DEVICES", "HELP_DEVICES", "HELP_DEVICES_TEXT", "help_icon_devices",
         palette::devices, palette::devicesBorder, &make<DeviceViewController>},
        {"validator", "icon_validater_active", "APP_VALIDATER", "HELP_VALIDATER", "HELP_VALIDATER_TEXT",
         "help_icon_validater", palette::validator, palette::validatorBorder, &make<ValidaterViewController>, "ipa",
         &openPackage},
    };
    return tools;
}

} // namespace lumora
