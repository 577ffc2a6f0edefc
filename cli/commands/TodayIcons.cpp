// SPDX-License-Identifier: MIT
#include "TodayIcons.h"

#include "PlatformNames.h"
#include "TodayReport.h"
#include "cli/arguments/OutputPlace.h"
#include "cli/console/CommandText.h"
#include "cli/console/Interruption.h"
#include "cli/console/KeptMemory.h"
#include "icons/IconCatalogue.h"
#include "icons/IconExport.h"
#include "icons/check/IconCheck.h"
#include "icons/check/ProjectCheck.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <optional>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// Complains of a failure. One without a subject is about the source; a picture that only has another size could be
/// taken with --fit.
ExitStatus refuse(Console &console, Failure failure, const QString &source, SourceFit fit)
{
    if (failure.subject.isEmpty())
        failure.subject = source.isEmpty() ? u"--example"_s : source;
    if (failure.code == FailureCode::WrongSize)
        console.complain(complaintOf(
            failure, commandText(fit == SourceFit::Exact ? "CLI_ICONS_WRONG_SIZE_ADVICE" : "CLI_ICONS_FIT_ADVICE")));
    else if (failure.code == FailureCode::NotAPicture)
        console.complain(complaintOf(failure, commandText("CLI_ICONS_SOURCE_ADVICE")));
    else
        console.complain(failure);
    return ExitStatus::Refused;
}

/// A line of progress, and whether to go on.
FileProgress progressOn(Console &console)
{
    return [&console](qsizetype number, qsizetype count, const QString &path) {
        console.progress(number, count, QFileInfo(path).fileName());
        return !Interruption::isRequested();
    };
}

/// The classic sets among the platforms; nothing where there are none.
std::optional<IconExport> writeClassicSets(Console &console, const TodayRun &run, const ExportFolder &folder,
                                           const Motifs &motifs)
{
    PlatformIconsRequest request;
    request.expected = classicPlatformsNamed(run.platforms);
    if (request.expected.isEmpty())
        return std::nullopt;
    request.icon = motifs.sources().icon.at(sourceIconSize);
    request.folder = folder;
    request.isChosen = [&request](const PlatformIcons &platform) {
        return request.expected.contains(platform.platform);
    };
    request.progress = [&console](const IconProgress &progress) {
        console.progress(progress.file, progress.count, QFileInfo(progress.path).fileName());
    };
    request.isStopped = &Interruption::isRequested;
    return generatePlatformIcons(request);
}

QJsonArray classicFiles(const std::optional<IconExport> &result)
{
    QJsonArray files;
    if (!result)
        return files;
    for (const IconFile &file : result->files) {
        if (!file.failure)
            files.append(QJsonObject{{u"path"_s, file.path}, {u"size"_s, file.size}, {u"bytes"_s, file.bytes}});
    }
    return files;
}

/// Complains that a store or a build would refuse what is in the folder.
void complainOfCheck(Console &console, const QString &folder)
{
    console.complain(
        Complaint{Complaint::Kind::Failure, u"check-failed"_s, folder, commandText("CLI_CHECK_FAILED"), {}});
}

/// The first failure whole, the others by their files.
void complainOf(Console &console, const QList<Failure> &failures, const QString &folder)
{
    if (failures.isEmpty())
        return;
    console.complain(failures.first());
    const QDir base(folder);
    QStringList missing;
    for (const Failure &failure : failures)
        missing << base.relativeFilePath(failure.subject);
    console.complain(
        Complaint{Complaint::Kind::Failure,
                  u"missing-files"_s,
                  {},
                  commandText("CLI_MISSING_FILES", {{"[FOLDER]", folder}, {"[FILES]", missing.join(u", "_s)}}),
                  {}});
}

} // namespace

ExitStatus writeTodaySets(Console &console, const TodayRun &run)
{
    keepFreedMemory();
    const Result<TodayInput> input = readTodayInput(run.arguments, run.source);
    if (!input)
        return refuse(console, input.failure(), run.source, run.arguments.sourceFit());
    const Motifs motifs(input.value().sources, run.arguments.macForm());
    const QList<TodaySet> sets = todaySetsNamed(run.platforms);
    Result<FilePlan> plan = planSets(sets, motifs, run.arguments.setOptions());
    if (!plan)
        return refuse(console, plan.failure(), run.source, run.arguments.sourceFit());
    plan.value().derived = input.value().derived + plan.value().derived;
    const Result<ExportFolder> folder = run.place.open(u"icons"_s);
    if (!folder)
        return refuse(console, folder.failure(), run.source, run.arguments.sourceFit());
    const QString path = folder.value().path;
    const Interruption interruption;
    const std::optional<IconExport> classic = writeClassicSets(console, run, folder.value(), motifs);
    const TodayExport result = writePlan(plan.value(), motifs, path, progressOn(console));
    console.endProgress();

    const QList<Failure> failures = (classic ? classic->failures() : QList<Failure>()) + result.failures();
    const IconCheck check = result.isStopped ? IconCheck() : checkSets(path, sets);
    console.print(path);
    for (const TodayFile &file : result.files)
        console.note(file.path);
    printDerived(console, result.derived);
    for (const QString &line : findingLines(check, path))
        console.print(line);
    complainOf(console, failures, path);
    ExitStatus status =
        failures.isEmpty() && !check.has(FindingSeverity::Error) ? ExitStatus::Done : ExitStatus::Refused;
    const bool checkFailed = failures.isEmpty() && check.has(FindingSeverity::Error);
    if (checkFailed)
        complainOfCheck(console, path);
    QJsonArray files = classicFiles(classic);
    const QJsonArray more = filesJson(result);
    for (const auto &file : more)
        files.append(file);
    if (result.isStopped) {
        console.complain(Interruption::complaint(files.size(), plan.value().files.size()));
        status = Interruption::status();
    }
    const QString icns = classic ? classic->icns : QString();
    return console.finish(status, {{u"folder"_s, path},
                                   {u"files"_s, files},
                                   {u"icns"_s, icns.isEmpty() ? QJsonValue() : QJsonValue(icns)},
                                   {u"derived"_s, derivedJson(result.derived)},
                                   {u"findings"_s, findingsJson(check)}});
}

ExitStatus writeIntoProjects(Console &console, const IntoRun &run)
{
    keepFreedMemory();
    const Result<QString> folder = absolutePath(run.folder);
    if (!folder)
        return refuse(console, folder.failure(), run.source, run.arguments.sourceFit());
    const QFileInfo info(folder.value());
    if (!info.isDir())
        return refuse(console, {info.exists() ? FailureCode::NotAFolder : FailureCode::NotFound, run.folder, {}},
                      run.source, run.arguments.sourceFit());
    const Result<TodayInput> input = readTodayInput(run.arguments, run.source);
    if (!input)
        return refuse(console, input.failure(), run.source, run.arguments.sourceFit());
    const Motifs motifs(input.value().sources, run.arguments.macForm());
    Result<ProjectPlan> plan = planProjects(folder.value(), motifs, run.options);
    if (!plan)
        return refuse(console, plan.failure(), run.source, run.arguments.sourceFit());
    const Interruption interruption;
    const Result<QList<ProjectFile>> files =
        compareWithProject(folder.value(), plan.value().files, motifs, progressOn(console));
    const Outcome written = !files       ? Outcome(files.failure())
                            : run.dryRun ? Outcome(Done{})
                                         : writeIntoProject(folder.value(), files.value(), progressOn(console));
    console.endProgress();
    if (!written && written.failure().code == FailureCode::Stopped) {
        console.complain(Interruption::complaint(0, plan.value().files.files.size()));
        return Interruption::status();
    }
    if (!written)
        return refuse(console, written.failure(), run.source, run.arguments.sourceFit());
    const IconCheck check = run.dryRun ? IconCheck() : checkProject(folder.value(), plan.value().files);
    const QList<Derived> derived = input.value().derived + plan.value().files.derived;
    printProjectFiles(console, files.value());
    printDerived(console, derived);
    for (const QString &line : plan.value().files.linesToAdd)
        console.print(commandText("CLI_ICONS_LINE_TO_ADD", {{"[LINE]", line}}));
    for (const QString &line : findingLines(check, folder.value()))
        console.print(line);
    const bool refused = check.has(FindingSeverity::Error);
    if (refused)
        complainOfCheck(console, run.folder);
    return console.finish(refused ? ExitStatus::Refused : ExitStatus::Done,
                          {{u"folder"_s, folder.value()},
                           {u"dryRun"_s, run.dryRun},
                           {u"projects"_s, projectsJson(plan.value().projects)},
                           {u"changes"_s, projectFilesJson(files.value())},
                           {u"derived"_s, derivedJson(derived)},
                           {u"linesToAdd"_s, QJsonArray::fromStringList(plan.value().files.linesToAdd)},
                           {u"findings"_s, findingsJson(check)}});
}

ExitStatus checkIconFolder(Console &console, const QString &folder)
{
    const Result<QString> path = absolutePath(folder);
    if (!path) {
        console.complain(path.failure());
        return ExitStatus::Refused;
    }
    const Result<IconCheck> check = checkIcons(path.value());
    if (!check) {
        console.complain(check.failure());
        return ExitStatus::Refused;
    }
    if (check.value().checked.isEmpty()) {
        console.complain(
            Complaint{Complaint::Kind::Failure, u"no-icons"_s, folder, commandText("CLI_ICONS_NONE_FOUND"), {}});
        return ExitStatus::Refused;
    }
    for (const QString &line : findingLines(check.value(), path.value()))
        console.print(line);
    const bool refused = check.value().has(FindingSeverity::Error);
    if (check.value().findings.isEmpty())
        console.print(commandText("CLI_ICONS_CHECKED", {{"[N]", QString::number(check.value().checked.size())}}));
    if (refused)
        complainOfCheck(console, folder);
    return console.finish(refused ? ExitStatus::Refused : ExitStatus::Done,
                          {{u"folder"_s, path.value()},
                           {u"checked"_s, QJsonArray::fromStringList(check.value().checked)},
                           {u"findings"_s, findingsJson(check.value())}});
}

} // namespace lumora
