// SPDX-License-Identifier: MIT
#include "IconsCommand.h"

#include "ExistingFolder.h"
#include "IconInput.h"
#include "IconReport.h"
#include "KeptMemory.h"
#include "icons/IconExport.h"

#include <CLI/Validators.hpp>

#include <QFileInfo>

#include <memory>
#include <vector>

namespace lumora
{

namespace
{

constexpr char allPlatforms[] = "all";

struct IconsArguments : IconArguments
{
    std::vector<std::string> platforms;
};

std::vector<std::string> platformNames()
{
    std::vector<std::string> names;
    for (const PlatformIcons &platform : iconPlatforms)
        names.emplace_back(platform.commandName);
    names.emplace_back(allPlatforms);
    return names;
}

QList<IconPlatform> chosenPlatforms(const std::vector<std::string> &names)
{
    QList<IconPlatform> chosen;
    for (const PlatformIcons &platform : iconPlatforms) {
        for (const std::string &name : names) {
            if (name == allPlatforms || name == platform.commandName) {
                chosen << platform.platform;
                break;
            }
        }
    }
    return chosen;
}

ExitStatus runIcons(Console &console, const IconsArguments &arguments)
{
    keepFreedMemory();
    const Result<QString> destination = existingFolder(arguments.destination);
    if (!destination) {
        console.complain(destination.failure());
        return ExitStatus::Refused;
    }
    const Result<QImage> source = iconSource(arguments);
    if (!source) {
        console.complain(source.failure());
        return ExitStatus::Refused;
    }
    PlatformIconsRequest request;
    request.icon = source.value();
    request.savePath = destination.value();
    request.expected = chosenPlatforms(arguments.platforms);
    request.isChosen = [&request](const PlatformIcons &platform) {
        return request.expected.contains(platform.platform);
    };
    request.progress = [&console](const IconProgress &progress) {
        console.progress(progress.file, progress.count, QFileInfo(progress.path).fileName());
    };
    const IconExport result = generatePlatformIcons(request);
    console.endProgress();
    return reportIcons(console, result, arguments.json ? IconReportForm::Json : IconReportForm::Text);
}

} // namespace

CommandBody declareIconsCommand(CLI::App &subcommand)
{
    const auto arguments = std::make_shared<IconsArguments>();
    subcommand.description("Write every icon of whole platforms from one picture");
    arguments->declareOn(subcommand);
    subcommand.add_option("--platform", arguments->platforms, "Platforms, separated by commas")
        ->delimiter(',')
        ->check(CLI::IsMember(platformNames()))
        ->type_name("LIST")
        ->allow_extra_args(false)
        ->required();
    return [arguments](Console &console) { return runIcons(console, *arguments); };
}

} // namespace lumora
