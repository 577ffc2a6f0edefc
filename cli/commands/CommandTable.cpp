// SPDX-License-Identifier: MIT
#include "CommandTable.h"

#include "ColorCommand.h"
#include "DevicesCommand.h"
#include "DownscaleCommand.h"
#include "IconCommand.h"
#include "IconsCommand.h"
#include "PlaceholdersCommand.h"
#include "cli/packages/DiffCommand.h"
#include "cli/packages/RulesCommand.h"
#include "cli/packages/ValidateCommand.h"

namespace lumora
{

namespace
{

constexpr Command commands[] = {
    {"icons", ToolIndex::Icons, "CLI_ICONS_ABOUT", false, &declareIconsCommand},
    {"icon", ToolIndex::Icons, "CLI_ICON_ABOUT", false, &declareIconCommand},
    {"placeholders", ToolIndex::Placeholders, "CLI_PLACEHOLDERS_ABOUT", true, &declarePlaceholdersCommand},
    {"downscale", ToolIndex::Resizer, "CLI_DOWNSCALE_ABOUT", false, &declareDownscaleCommand},
    {"color", ToolIndex::Color, "CLI_COLOR_ABOUT", false, &declareColorCommand},
    {"devices", ToolIndex::Devices, "CLI_DEVICES_ABOUT", false, &declareDevicesCommand},
    {"validate", ToolIndex::Validator, "CLI_VALIDATE_ABOUT", false, &declareValidateCommand},
    {"diff", ToolIndex::Validator, "CLI_DIFF_ABOUT", false, &declareDiffCommand},
    {"rules", ToolIndex::Validator, "CLI_RULES_ABOUT", false, &declareRulesCommand},
};

} // namespace

std::span<const Command> commandTable()
{
    return commands;
}

const Command *commandNamed(QStringView name)
{
    for (const Command &command : commands) {
        if (name == QLatin1StringView(command.name))
            return &command;
    }
    for (const Command &command : commands) {
        if (name == QLatin1StringView(factsOf(command.tool).name))
            return &command;
    }
    return nullptr;
}

QStringList commandNames()
{
    QStringList names;
    for (const Command &command : commands)
        names << QString::fromLatin1(command.name);
    return names;
}

QString toolNamed(const QString &name)
{
    const Command *command = commandNamed(name);
    return command == nullptr ? QString() : QString::fromLatin1(factsOf(command->tool).name);
}

QStringList toolNames()
{
    QStringList names;
    for (const ToolFacts &tool : toolFacts)
        names << QString::fromLatin1(tool.name);
    return names;
}

} // namespace lumora
