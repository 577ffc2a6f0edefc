// SPDX-License-Identifier: MIT
#include "ToolTable.h"

#include "color/ColorViewController.h"
#include "devices/DeviceViewController.h"
#include "icons/IconsViewController.h"
#include "placeholders/PlaceholderViewController.h"
#include "resizer/ResizerViewController.h"
#include "validator/ValidaterViewController.h"

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
        {factsOf(ToolIndex::Icons), &make<IconsViewController>, &openIcon, "HELP_ICONS_TODAY_TEXT"},
        {factsOf(ToolIndex::Placeholders), &make<PlaceholderViewController>, nullptr, "HELP_PLACEHOLDER_TODAY_TEXT"},
        {factsOf(ToolIndex::Resizer), &make<ResizerViewController>, nullptr, "HELP_RESIZER_TODAY_TEXT"},
        {factsOf(ToolIndex::Color), &make<ColorViewController>, nullptr, "HELP_COLOR_TODAY_TEXT"},
        {factsOf(ToolIndex::Devices), &make<DeviceViewController>, nullptr, "HELP_DEVICES_TODAY_TEXT"},
        {factsOf(ToolIndex::Validator), &make<ValidaterViewController>, &openPackage},
    };
    static_assert(std::size(tools) == toolFacts.size());
    return tools;
}

} // namespace lumora
