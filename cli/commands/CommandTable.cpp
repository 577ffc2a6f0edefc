// SPDX-License-Identifier: MIT
#include "CommandTable.h"

#include "ColorCommand.h"
#include "DevicesCommand.h"
#include "DownscaleCommand.h"
#include "IconCommand.h"
#include "IconsCommand.h"
#include "PlaceholdersCommand.h"
#include "ValidateCommand.h"

namespace lumora
{

namespace
{

constexpr Command commands[] = {
    {"icons", "icons", "CLI_ICONS_ABOUT", false, &declareIconsCommand},
    {"icon", "icons", "CLI_ICON_ABOUT", false, &declareIconCommand},
    {"placeholders", "placeholders", "CLI_PLACEHOLDERS_ABOUT", true, &declarePlaceholdersCommand},
    {"downscale", "resizer", "CLI_DOWNSCALE_ABOUT", false, &declareDownscaleCommand},
    {"color", "color", "CLI_COLOR_ABOUT", false, &declareColorCommand},
    {"devices", "devices", "CLI_DEVICES_ABOUT", false, &declareDevicesCommand},
    {"validate", "validator", "CLI_VALIDATE_ABOUT", false, &declareValidateCommand},
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
        if (name == QLatin1StringView(command.tool))
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
    return command == nullptr ? QString() : QString::fromLatin1(command->tool);
}

QStringList toolNames()
{
    QStringList names;
    for (const Command &command : commands) {
        const QString name = QString::fromLatin1(command.tool);
        if (!names.contains(name))
            names << name;
    }
    return names;
}

} // namespace lumora
