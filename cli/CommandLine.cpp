// SPDX-License-Identifier: MIT
#include "CommandLine.h"

#include "ColorCommand.h"
#include "Console.h"
#include "DevicesCommand.h"
#include "DownscaleCommand.h"
#include "IconCommand.h"
#include "IconsCommand.h"
#include "PlaceholdersCommand.h"
#include "ValidateCommand.h"
#include "foundation/Log.h"
#include "foundation/Version.h"

#include <CLI/CLI.hpp>

#include <QGuiApplication>

#include <array>
#include <cstring>
#include <memory>
#include <vector>

namespace lumora
{

namespace
{

/// Every command, in the order in which --help lists them.
const std::vector<Command> &commands()
{
    static const std::vector<Command> all = {
        {"icons", false, &declareIconsCommand},
        {"icon", false, &declareIconCommand},
        {"placeholders", true, &declarePlaceholdersCommand},
        {"downscale", false, &declareDownscaleCommand},
        {"color", false, &declareColorCommand},
        {"devices", false, &declareDevicesCommand},
        {"validate", false, &declareValidateCommand},
    };
    return all;
}

const Command *commandNamed(const char *name)
{
    for (const Command &command : commands()) {
        if (std::strcmp(command.name, name) == 0)
            return &command;
    }
    return nullptr;
}

std::unique_ptr<QCoreApplication> makeApplication(int &argc, char **argv, bool drawsText)
{
    if (!drawsText)
        return std::make_unique<QCoreApplication>(argc, argv);
    // Text is drawn into pictures only; a screen is neither needed nor asked for.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return std::make_unique<QGuiApplication>(argc, argv);
}

} // namespace

bool isCommandLine(int argc, const char *const *argv)
{
    if (argc < 2)
        return false;
    return std::strcmp(argv[1], "--help") == 0 || std::strcmp(argv[1], "-h") == 0 ||
           std::strcmp(argv[1], "--version") == 0 || commandNamed(argv[1]) != nullptr;
}

QStringList commandNames()
{
    QStringList names;
    for (const Command &command : commands())
        names << QString::fromLatin1(command.name);
    return names;
}

int runCommandLine(int argc, char **argv)
{
    CLI::App parser{
        "Lumora: icons, placeholders, down-scaling, colour codes, device matrix and app package checks.\n"
        "Without a command it opens its window, with the given files if there are any; with --tool=NAME at the\n"
        "tool icons, placeholders, resizer, color, devices or validator.",
        "lumora"};
    parser.set_version_flag("--version", std::string("lumora ") + versionText, "Print the version and exit");
    parser.require_subcommand(1);

    CommandBody chosen;
    for (const Command &command : commands()) {
        CLI::App *subcommand = parser.add_subcommand(command.name);
        CommandBody body = command.declare(*subcommand);
        subcommand->callback([&chosen, body] { chosen = body; });
    }
    try {
        parser.parse(argc, argv);
    } catch (const CLI::ParseError &error) {
        const int status = parser.exit(error);
        return status == 0 ? 0 : static_cast<int>(ExitStatus::Usage);
    }

    // What the engines note for the window's log, and what Qt and its plug-ins remark on, is no business of a script;
    // failures are told by the commands themselves.
    QLoggingCategory::setFilterRules(QStringLiteral("*.info=false\n*.warning=false"));
    const Command *command = commandNamed(argv[1]);
    const auto application = makeApplication(argc, argv, command != nullptr && command->drawsText);
    QCoreApplication::setApplicationName(QStringLiteral("lumora"));
    QCoreApplication::setApplicationVersion(QLatin1StringView(versionText));

    Console console;
    ExitStatus status = chosen(console);
    console.endProgress();
    if (!console.flush()) {
        console.complain(QStringLiteral("standard output: could not be written; check where it goes"));
        status = ExitStatus::Refused;
    }
    return static_cast<int>(status);
}

} // namespace lumora
