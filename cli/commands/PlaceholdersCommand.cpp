// SPDX-License-Identifier: MIT
#include "PlaceholdersCommand.h"

#include "LabeledPlaceholders.h"
#include "PlaceholderReport.h"
#include "cli/arguments/Declaration.h"
#include "cli/arguments/OutputPlace.h"
#include "cli/arguments/TypedNumber.h"
#include "cli/console/CommandText.h"
#include "cli/console/Interruption.h"
#include "placeholders/LabelFont.h"
#include "placeholders/PlaceholderExport.h"
#include "placeholders/PlaceholderSizes.h"

#include <QFileInfo>

#include <algorithm>
#include <memory>
#include <optional>
#include <vector>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

struct PlaceholdersArguments
{
    LabeledPlaceholdersRequest labeled; ///< its sets and sizes are also used for the gray pictures
    OutputPlace place;
};

/// The fault of a size: a text that is not a size is a wrong call; a size out of range is refused.
std::optional<Complaint> problemWith(const QString &text, const TypedSize &size)
{
    if (size.isSize && isPlaceholderEdge(size.value.width()) && isPlaceholderEdge(size.value.height()))
        return {};
    Complaint complaint =
        misuse("bad-value", commandText("CLI_WRONG_SIZE_TEXT", {{"[LEAST]", QString::number(shortestPlaceholderEdge)},
                                                                {"[MOST]", QString::number(longestPlaceholderEdge)}}));
    complaint.path = u"--size "_s + text;
    if (size.isSize) {
        complaint.kind = Complaint::Kind::Failure;
        complaint.code = u"out-of-range"_s;
    }
    return complaint;
}

/// The requested sizes without duplicates; empty after a complaint.
std::optional<std::vector<QSize>> wantedSizes(Console &console, const PlaceholdersArguments &arguments,
                                              ExitStatus &status)
{
    if (!arguments.labeled.sets.isEmpty()) {
        const auto set =
            placeholderSizes(arguments.labeled.sets[0] == u"ios" ? PlaceholderSet::Ios : PlaceholderSet::Mac);
        return std::vector<QSize>(set.begin(), set.end());
    }
    std::vector<QSize> sizes;
    for (const QString &text : arguments.labeled.sizes) {
        const TypedSize size = typedSize(text);
        if (const std::optional<Complaint> problem = problemWith(text, size)) {
            console.complain(*problem);
            status = problem->kind == Complaint::Kind::Misuse ? ExitStatus::Usage : ExitStatus::Refused;
            return std::nullopt;
        }
        if (std::find(sizes.begin(), sizes.end(), size.value) == sizes.end())
            sizes.push_back(size.value);
    }
    return sizes;
}

ExitStatus runPlaceholders(Console &console, const PlaceholdersArguments &arguments)
{
    if (!arguments.labeled.checkedFolder.isEmpty())
        return checkScreenshots(console, arguments.labeled);
    if (arguments.labeled.isMeant())
        return writeLabeledPlaceholders(console, arguments.labeled, arguments.place);
    ExitStatus status = ExitStatus::Refused;
    const std::optional<std::vector<QSize>> sizes = wantedSizes(console, arguments, status);
    if (!sizes)
        return status;
    const Result<ExportFolder> folder = arguments.place.open(u"placeholders"_s);
    if (!folder) {
        console.complain(folder.failure());
        return ExitStatus::Refused;
    }
    const Interruption interruption;
    const LabelFont font;
    std::vector<Placeholder> pictures;
    for (const QSize size : *sizes)
        pictures.push_back(placeholderWithSize(size, font));
    const auto written = [&console](qsizetype done, qsizetype total) {
        console.progress(done, total, u"placeholders"_s);
        return !Interruption::isRequested();
    };
    const PlaceholderRun run = savePlaceholders(pictures, folder.value(), written);
    console.endProgress();
    return reportPlaceholders(console, run, std::ssize(pictures));
}

} // namespace

CommandBody declarePlaceholdersCommand(Declaration &declaration)
{
    const auto arguments = std::make_shared<PlaceholdersArguments>();
    LabeledPlaceholdersRequest &labeled = arguments->labeled;
    declaration.option("--set", &labeled.sets, "NAME", "CLI_PLACEHOLDERS_SET")
        .words(QStringList{u"ios"_s, u"mac"_s} + storeSetNames())
        .list();
    declaration.option("--size", &labeled.sizes, "WxH", "CLI_PLACEHOLDERS_SIZE").list();
    labeled.declareOn(declaration);
    declaration.atLeastOne({u"--set"_s, u"--size"_s, u"--check"_s});
    for (const char *option : {"--set", "--check", "--text", "--foreground", "--background", "--format", "--quality"}) {
        const QString name = QString::fromLatin1(option);
        if (name == u"--set" || name == u"--check")
            declaration.atMostOne({u"--size"_s, name});
        if (name != u"--set" && name != u"--check")
            declaration.atMostOne({u"--check"_s, name});
    }
    arguments->place.declareOn(declaration, "CLI_PLACEHOLDERS_TO", {u"--check"_s});
    declaration.example("lumora placeholders --size 1136x640,64x64 --out build/placeholders");
    declaration.example("lumora placeholders --set play,social --text Soon --format webp --to build");
    return [arguments](Console &console) { return runPlaceholders(console, *arguments); };
}

} // namespace lumora
