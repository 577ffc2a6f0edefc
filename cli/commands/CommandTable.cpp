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
    {"icons", "CLI_ICONS_ABOUT", &declareIconsCommand, ToolIndex::Icons, false},
    {"icon", "CLI_ICON_ABOUT", &declareIconCommand, ToolIndex::Icons, false},
    {"placeholders", "CLI_PLACEHOLDERS_ABOUT", &declarePlaceholdersCommand, ToolIndex::Placeholders, true},
    {"downscale", "CLI_DOWNSCALE_ABOUT", &declareDownscaleCommand, ToolIndex::Resizer, false},
    {"color", "CLI_COLOR_ABOUT", &declareColorCommand, ToolIndex::Color, false},
    {"devices", "CLI_DEVICES_ABOUT", &declareDevicesCommand, ToolIndex::Devices, false},
    {"validate", "CLI_VALIDATE_ABOUT", &declareValidateCommand, ToolIndex::Validator, false},
    {"diff", "CLI_DIFF_ABOUT", &declareDiffCommand, ToolIndex::Validator, false},
    {"rules", "CLI_RULES_ABOUT", &declareRulesCommand, ToolIndex::Validator, false},
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
