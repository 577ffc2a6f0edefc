// SPDX-License-Identifier: MIT
#include "IconsCommand.h"

#include "IconInput.h"
#include "IconReport.h"
#include "PlatformNames.h"
#include "TodayIcons.h"
#include "cli/arguments/Declaration.h"
#include "cli/console/CommandText.h"
#include "cli/console/Interruption.h"
#include "cli/console/KeptMemory.h"
#include "icons/IconExport.h"

#include <QFileInfo>

#include <memory>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

struct IconsArguments : IconArguments
{
    QStringList platforms;
    TodayArguments today;
    QString into;
    bool dryRun = false;
    ProjectOptions project;
    QString checked;
};

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
    request.expected = classicPlatformsNamed(arguments.platforms);
    request.isChosen = [&request](const PlatformIcons &platform) {
        return request.expected.contains(platform.platform);
    };
    request.progress = [&console](const IconProgress &progress) {
        console.progress(progress.file, progress.count, QFileInfo(progress.path).fileName());
    };
    request.isStopped = &Interruption::isRequested;
    return reportIcons(console, generatePlatformIcons(request), fileCount(request.expected));
}

/// What keeps the options from belonging together, if anything does.
std::optional<Complaint> contradiction(const IconsArguments &arguments)
{
    if (arguments.into.isEmpty()) {
        for (const auto &[option, isGiven] : {std::pair{u"--dry-run"_s, arguments.dryRun},
                                              std::pair{u"--flavor"_s, !arguments.project.flavor.isEmpty()},
                                              std::pair{u"--target"_s, !arguments.project.target.isEmpty()}}) {
            if (isGiven)
                return misuse("conflicting-options",
                              commandText("CLI_NEEDS", {{"[FIRST]", option}, {"[SECOND]", u"--into"_s}}));
        }
    }
    const QString ofToday = arguments.today.firstGiven();
    if (ofToday.isEmpty() || !arguments.into.isEmpty() || !todaySetsNamed(arguments.platforms).isEmpty())
        return std::nullopt;
    if (!arguments.checked.isEmpty())
        return misuse("conflicting-options",
                      commandText("CLI_CONFLICT", {{"[FIRST]", ofToday}, {"[SECOND]", u"--check"_s}}));
    return misuse(
        "conflicting-options",
        commandText("CLI_ICONS_NOT_CLASSIC", {{"[OPTION]", ofToday}, {"[WORDS]", alternatives(todaySetNames())}}));
}

ExitStatus runChosen(Console &console, const IconsArguments &arguments)
{
    if (const std::optional<Complaint> problem = contradiction(arguments)) {
        console.complain(*problem);
        return console.finish(ExitStatus::Usage);
    }
    if (!arguments.checked.isEmpty())
        return checkIconFolder(console, arguments.checked);
    if (!arguments.into.isEmpty())
        return writeIntoProjects(
            console, {arguments.today, arguments.source, arguments.into, arguments.project, arguments.dryRun});
    if (todaySetsNamed(arguments.platforms).isEmpty())
        return runIcons(console, arguments);
    return writeTodaySets(console, {arguments.today, arguments.source, arguments.platforms, arguments.place});
}

} // namespace

CommandBody declareIconsCommand(Declaration &declaration)
{
    const auto arguments = std::make_shared<IconsArguments>();
    const QStringList elsewhere{u"--into"_s, u"--check"_s};
    arguments->declareOn(declaration, "CLI_ICONS_SOURCE", elsewhere, {u"--check"_s});
    declaration.option("--platform", &arguments->platforms, "LIST", "CLI_ICONS_PLATFORM")
        .words(classicPlatformNames() + todaySetNames())
        .list();
    declaration.exactlyOne(QStringList{u"--platform"_s} + elsewhere);
    arguments->today.declareOn(declaration);
    declaration.option("--into", &arguments->into, "DIR", "CLI_ICONS_INTO").in(ArgumentGroup::Output);
    declaration.flag("--dry-run", &arguments->dryRun, "CLI_ICONS_DRY_RUN").in(ArgumentGroup::Output);
    declaration.option("--flavor", &arguments->project.flavor, "NAME", "CLI_ICONS_FLAVOR").in(ArgumentGroup::Output);
    declaration.option("--target", &arguments->project.target, "NAME", "CLI_ICONS_TARGET").in(ArgumentGroup::Output);
    declaration.option("--check", &arguments->checked, "DIR", "CLI_ICONS_CHECK");
    declaration.example("lumora icons logo.png --platform iphone,ipad --to build");
    declaration.example("lumora icons logo.png --platform today --out build/icons --json");
    return [arguments](Console &console) { return runChosen(console, *arguments); };
}

} // namespace lumora
