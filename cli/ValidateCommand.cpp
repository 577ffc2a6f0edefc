// SPDX-License-Identifier: MIT
#include "ValidateCommand.h"

#include "Console.h"
#include "PackageReportText.h"
#include "pictures/PictureOperations.h"
#include "validator/archive/OpenPackage.h"

#include <CLI/Validators.hpp>

#include <QFile>
#include <QJsonArray>

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

struct ValidateArguments
{
    std::vector<std::string> files;
    std::string icon;
    bool json = false;
};

Result<PackageReport> inspected(const QString &file, const ProfileDecoder &decoder)
{
    const auto source = openPackage(file);
    if (!source)
        return source.failure();
    const WholeReading reading = source.value()->readAll([](const PackageEntry &) { return nullptr; });
    PackageReport report = inspectPackage(*source.value(), reading, decoder);
    const Outcome outcome = reportOutcome(report);
    if (!outcome)
        return outcome.failure();
    return report;
}

void complainOfDamage(Console &console, const QString &file, const PackageReport &report)
{
    for (const QString &entry : report.extraction.damagedEntries)
        console.complain(file + u": "_s + entry + u" is damaged or encrypted; pack the app again"_s);
    if (!report.facts.appInfoPlist)
        console.complain(file + u": has no readable Info.plist, so nothing is known of the app"_s);
}

bool writeIcon(Console &console, const QString &file, const PackageReport &report, const QString &path)
{
    if (report.artwork.appIcon.isNull()) {
        console.complain(file + u": has no icon that can be shown, so none was written"_s);
        return false;
    }
    const Outcome saved = saveImage(report.artwork.appIcon, BitmapType::Png, path);
    if (!saved)
        console.complain(saved.failure());
    return saved.ok();
}

ExitStatus validateOne(Console &console, const QString &file, const std::optional<QString> &icon, bool json,
                       const ProfileDecoder &decoder, QJsonArray &objects)
{
    const auto report = inspected(file, decoder);
    if (!report) {
        console.complain(report.failure());
        if (json)
            objects += failureJson(file, report.failure());
        return ExitStatus::Unreadable;
    }
    complainOfDamage(console, file, report.value());
    if (json) {
        objects += reportJson(file, report.value());
    } else {
        for (const QString &line : reportLines(file, report.value()))
            console.print(line);
    }
    const bool iconWritten = !icon || writeIcon(console, file, report.value(), *icon);
    return allJudgedValid(report.value()) && iconWritten ? ExitStatus::Done : ExitStatus::Refused;
}

ExitStatus runValidate(Console &console, const ValidateArguments &arguments)
{
    if (!arguments.icon.empty() && arguments.files.size() > 1) {
        console.complain(u"--icon: writes the icon of one file, but several are given"_s);
        return ExitStatus::Usage;
    }
    QStringList files;
    for (const std::string &file : arguments.files)
        files += QFile::decodeName(file.c_str());
    const auto icon = arguments.icon.empty() ? std::nullopt : std::optional(QFile::decodeName(arguments.icon.c_str()));
    const CmsProfileDecoder decoder;
    ExitStatus status = ExitStatus::Done;
    QJsonArray objects;
    for (qsizetype i = 0; i < files.size(); ++i) {
        if (i > 0 && !arguments.json)
            console.print(QString());
        const ExitStatus one = validateOne(console, files[i], icon, arguments.json, decoder, objects);
        // "Could not be read" outranks "something is invalid", which outranks "all is well".
        status = std::max(status, one);
    }
    if (arguments.json)
        console.print(files.size() == 1 ? QJsonDocument(objects.first().toObject()) : QJsonDocument(objects));
    return status;
}

} // namespace

CommandBody declareValidateCommand(CLI::App &subcommand)
{
    const auto arguments = std::make_shared<ValidateArguments>();
    subcommand.description(
        "Read iOS app packages, print their facts and check their icons, launch images, bundle "
        "identifier and localizations.\nExit status: 0 all checks valid, 1 at least one invalid, 3 a "
        "file is no archive with an app.");
    subcommand.add_option("files", arguments->files, "App packages")->required()->type_name("FILE.ipa...");
    subcommand.add_flag("--json", arguments->json, "Print one JSON object, or an array of them for several files");
    subcommand.add_option("--icon", arguments->icon, "Write the app's icon, 128 pixels square")->type_name("OUT.png");
    return [arguments](Console &console) { return runValidate(console, *arguments); };
}

} // namespace lumora
