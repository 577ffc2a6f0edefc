// SPDX-License-Identifier: MIT
#include "IconsCommand.h"

#include "IconInput.h"
#include "IconReport.h"
#include "cli/arguments/Declaration.h"
#include "cli/console/Interruption.h"
#include "cli/console/KeptMemory.h"
#include "icons/IconExport.h"

#include <QFileInfo>

#include <memory>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

const QString allPlatforms = u"all"_s;

struct IconsArguments : IconArguments
{
    QStringList platforms;
};

QStringList platformNames()
{
    QStringList names;
    for (const PlatformIcons &platform : iconPlatforms)
        names << QString::fromLatin1(platform.commandName);
    return names << allPlatforms;
}

QList<IconPlatform> chosenPlatforms(const QStringList &names)
{
    QList<IconPlatform> chosen;
    for (const PlatformIcons &platform : iconPlatforms) {
        if (names.contains(allPlatforms) || names.contains(QLatin1StringView(platform.commandName)))
            chosen << platform.platform;
    }
    return chosen;
}

qsizetype fileCount(const QList<IconPlatform> &platforms)
{
    qsizetype count = 0;
    for (const PlatformIcons &platform : iconPlatforms) {
        if (platforms.contains(platform.platform))
            count += std::ssize(platform.icons);
    }
    return count;
}

ExitStatus runIcons(Console &console, const IconsArguments &arguments)
{
    keepFreedMemory();
    const Result<QImage> source = iconSource(arguments);
    if (!source) {
        console.complain(source.failure());
        return ExitStatus::Refused;
    }
    const Result<ExportFolder> folder = arguments.place.open(u"icons"_s);
    if (!folder) {
        console.complain(folder.failure());
        return ExitStatus::Refused;
    }
    const Interruption interruption;
    PlatformIconsRequest request;
    request.icon = source.value();
    request.folder = folder.value();
    request.expected = chosenPlatforms(arguments.platforms);
    request.isChosen = [&request](const PlatformIcons &platform) {
        return request.expected.contains(platform.platform);
    };
    request.progress = [&console](const IconProgress &progress) {
        console.progress(progress.file, progress.count, QFileInfo(progress.path).fileName());
    };
    request.isStopped = &Interruption::isRequested;
    return reportIcons(console, generatePlatformIcons(request), fileCount(request.expected));
}

} // namespace

CommandBody declareIconsCommand(Declaration &declaration)
{
    const auto arguments = std::make_shared<IconsArguments>();
    arguments->declareOn(declaration);
    declaration.option("--platform", &arguments->platforms, "LIST", "CLI_ICONS_PLATFORM")
        .words(platformNames())
        .list()
        .required();
    declaration.example("lumora icons logo.png --platform iphone,ipad --to build");
    declaration.example("lumora icons logo.png --platform all --out build/icons --json");
    return [arguments](Console &console) { return runIcons(console, *arguments); };
}

} // namespace lumora
