// SPDX-License-Identifier: MIT
#include "PlaceholdersCommand.h"

#include "Console.h"
#include "ExistingFolder.h"
#include "placeholders/LabelFont.h"
#include "placeholders/PlaceholderExport.h"
#include "placeholders/PlaceholderSizes.h"
#include "placeholders/TypedSize.h"

#include <CLI/Validators.hpp>

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

struct PlaceholdersArguments
{
    std::string set;
    std::vector<std::string> sizes;
    std::string destination;
    bool json = false;
};

/// The sizes asked for, each once; none after a complaint.
std::optional<std::vector<QSize>> wantedSizes(Console &console, const PlaceholdersArguments &arguments)
{
    if (!arguments.set.empty()) {
        const auto set = placeholderSizes(arguments.set == "ios" ? PlaceholderSet::Ios : PlaceholderSet::Mac);
        return std::vector<QSize>(set.begin(), set.end());
    }
    std::vector<QSize> sizes;
    for (const std::string &argument : arguments.sizes) {
        const QString text = QString::fromStdString(argument);
        const std::optional<QSize> size = typedPlaceholderSize(text);
        if (!size) {
            console.complain(
                u"--size %1: is no size; give width x height, each from %2 to %3, such as 1136x640"_s.arg(text)
                    .arg(shortestPlaceholderEdge)
                    .arg(longestPlaceholderEdge));
            return std::nullopt;
        }
        if (std::find(sizes.begin(), sizes.end(), *size) == sizes.end())
            sizes.push_back(*size);
    }
    return sizes;
}

QJsonObject fileJson(const PlaceholderFile &file)
{
    return {{u"path"_s, file.path},
            {u"width"_s, file.size.width()},
            {u"height"_s, file.size.height()},
            {u"bytes"_s, file.bytes}};
}

ExitStatus report(Console &console, const PlaceholderRun &run, bool json)
{
    if (run.folderFailure) {
        console.complain(*run.folderFailure);
        return ExitStatus::Refused;
    }
    ExitStatus status = ExitStatus::Done;
    QJsonArray files;
    for (const PlaceholderFile &file : run.files) {
        if (file.outcome) {
            files.append(fileJson(file));
        } else {
            console.complain(file.outcome.failure());
            status = ExitStatus::Refused;
        }
    }
    if (json)
        console.print(
            QJsonDocument(QJsonObject{{u"schema"_s, 1}, {u"folder"_s, run.folder.path}, {u"files"_s, files}}));
    else
        console.print(run.folder.path);
    return status;
}

ExitStatus runPlaceholders(Console &console, const PlaceholdersArguments &arguments)
{
    const std::optional<std::vector<QSize>> sizes = wantedSizes(console, arguments);
    if (!sizes)
        return ExitStatus::Refused;
    const Result<QString> destination = existingFolder(arguments.destination);
    if (!destination) {
        console.complain(destination.failure());
        return ExitStatus::Refused;
    }
    const LabelFont font;
    std::vector<Placeholder> pictures;
    for (const QSize size : *sizes)
        pictures.push_back(placeholderWithSize(size, font));
    const auto written = [&console](qsizetype done, qsizetype total) {
        console.progress(done, total, u"placeholders"_s);
    };
    const PlaceholderRun run = savePlaceholders(pictures, destination.value(), written);
    console.endProgress();
    return report(console, run, arguments.json);
}

} // namespace

CommandBody declarePlaceholdersCommand(CLI::App &subcommand)
{
    const auto arguments = std::make_shared<PlaceholdersArguments>();
    subcommand.description("Write grey pictures labelled with their size");
    CLI::Option_group *what = subcommand.add_option_group("What to write");
    what->add_option("--set", arguments->set, "The screen sizes of iOS devices or of the Mac")
        ->check(CLI::IsMember({"ios", "mac"}));
    what->add_option("--size", arguments->sizes, "A width and height from 1 to 9999 pixels; may be given several times")
        ->type_name("WxH")
        ->allow_extra_args(false);
    what->require_option(1);
    subcommand.add_option("--to", arguments->destination, "Existing folder that gets a fresh folder \"placeholders\"")
        ->type_name("DIR")
        ->required();
    subcommand.add_flag("--json", arguments->json, "Print folder and files as one JSON object");
    return [arguments](Console &console) { return runPlaceholders(console, *arguments); };
}

} // namespace lumora
