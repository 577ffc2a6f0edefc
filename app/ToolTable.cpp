// SPDX-License-Identifier: MIT
#include "ToolTable.h"

#include "icons/IconsViewController.h"
#include "widgets/Palette.h"

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

} // namespace

std::span<const Tool> toolTable()
{
    static const Tool tools[] = {
        {"icons", "icon_icons", "APP_ICONS", "HELP_ICONS", "HELP_ICONS_TEXT", "help_icon_icons", palette::icons,
         palette::iconsBorder, &make<IconsViewController>, "png", &openIcon},
    };
    return tools;
}

} // namespace lumora
