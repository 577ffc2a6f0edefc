// SPDX-License-Identifier: MIT
#include "ValidateCommand.h"

#include "Console.h"
#include "PackageReportText.h"
#include "foundation/PrintableText.h"
#include "pictures/PictureOperations.h"
#include "validator/bundle/WorkFolder.h"

#include <CLI/Validators.hpp>

#include <QFile>
#include <QFileInfo>
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

/// A path as it was given, and as it is reached from any folder.
struct GivenPath
{
    explicit GivenPath(const std::string &argument)
        : given(QFile::decodeName(argument.c_str())), absolute(QFileInfo(given).absoluteFilePath())
    {
    }

    QString given;
    QString absolute;
};

Result<PackageReport> inspected(const GivenPath &file, const ProfileDecoder &decoder)
{
    if (!isPackageName(file.given))
        return Failure{FailureCode::NotAnArchive, file.given, u"the name does not end in .ipa"_s};
    // A folder of its own for each package: what one leaves behind neither fills the disk nor meets the next.
    const auto folder = WorkFolder::makeCurrent();
    if (!folder)
        return folder.failure();
    PackageReport report = inspectPackage(file.absolute, {{}, decoder});
    if (auto failure = reportFailure(report)) {
        failure->subject = file.given;
        return *failure;
    }
    return report;
}

void complainOfDamage(Console &console, const QString &file, const PackageReport &report)
{
    for (const QString &entry : report.extraction.damagedEntries)
        console.complain(printableText(file + u": "_s + entry + u" is damaged or encrypted; pack the app again"_s));
    if (!report.facts.appInfoPlist)
        console.complain(printableText(file + u": has no readable Info.plist, so nothing is known of the app"_s));
}

bool writeIcon(Console &console, const QString &file, const PackageReport &report, const GivenPath &path)
{
    if (report.artwork.appIcon.isNull()) {
        console.complain(printableText(file + u": has no icon that can be shown, so none was written"_s));
        return false;
    }
    const Outcome saved = saveImage(report.artwork.appIcon, BitmapType::Png, path.absolute);
    if (!saved)
        console.complain(Failure{saved.failure().code, path.given, saved.failure().detail});
    return saved.ok();
}

ExitStatus validateOne(Console &console, const GivenPath &file, const std::optional<GivenPath> &icon, bool json,
                       const ProfileDecoder &decoder, QJsonArray &objects)
{
    const auto report = inspected(file, decoder);
    if (!report) {
        console.complain(report.failure());
        if (json)
            objects += failureJson(file.given, report.failure());
        return ExitStatus::Unreadable;
    }
    complainOfDamage(console, file.given, report.value());
    if (json) {
        objects += reportJson(file.given, report.value());
    } else {
        for (const QString &line : reportLines(file.given, report.value()))
            console.print(line);
    }
    const bool iconWritten = !icon || writeIcon(console, file.given, report.value(), *icon);
    return allJudgedValid(report.value()) && iconWritten ? ExitStatus::Done : ExitStatus::Refused;
}

ExitStatus runValidate(Console &console, const ValidateArguments &arguments)
{
    if (!arguments.icon.empty() && arguments.files.size() > 1) {
        console.complain(u"--icon: writes the icon of one file, but several are given"_s);
        return ExitStatus::Usage;
    }
    // All paths first: the folder that each package is unpacked in becomes the current one.
    const std::vector<GivenPath> files(arguments.files.begin(), arguments.files.end());
    const auto icon = arguments.icon.empty() ? std::nullopt : std::optional<GivenPath>(arguments.icon);
    const auto decoder = systemProfileDecoder();
    ExitStatus status = ExitStatus::Done;
    QJsonArray objects;
    for (std::size_t i = 0; i < files.size(); ++i) {
        if (i > 0 && !arguments.json)
            console.print(QString());
        const ExitStatus one = validateOne(console, files[i], icon, arguments.json, *decoder, objects);
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
