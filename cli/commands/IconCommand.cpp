// SPDX-License-Identifier: MIT
#include "IconCommand.h"

#include "IconInput.h"
#include "IconReport.h"
#include "cli/arguments/Declaration.h"
#include "cli/console/CommandText.h"
#include "cli/console/Interruption.h"
#include "icons/IconExport.h"

#include <QFileInfo>
#include <QJsonArray>

#include <memory>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

struct IconCommandArguments : IconArguments
{
    QList<int> sizes;
    QString corners = u"none"_s;
    QString file;

    CornerMode cornerMode() const
    {
        return corners == u"ios6" ? CornerMode::Ios6 : corners == u"ios7" ? CornerMode::Ios7 : CornerMode::None;
    }
    bool isForStdout() const { return file == u"-"; }
};

/// The rules for -o that the declaration cannot express.
std::optional<Complaint> misuseOfFile(const Console &console, const IconCommandArguments &arguments)
{
    if (arguments.file.isEmpty())
        return {};
    if (arguments.sizes.size() > 1)
        return misuse("conflicting-options", commandText("CLI_ICON_ONE_FILE"), commandText("CLI_ICON_ONE_FILE_ADVICE"));
    if (!arguments.isForStdout())
        return {};
    if (console.form().json)
        return misuse("conflicting-options",
                      commandText("CLI_CONFLICT", {{"[FIRST]", u"-o -"_s}, {"[SECOND]", u"--json"_s}}));
    if (::isatty(STDOUT_FILENO) == 1)
        return misuse("terminal", commandText("CLI_TERMINAL_OUTPUT"), commandText("CLI_TERMINAL_OUTPUT_ADVICE"));
    return {};
}

ExitStatus writeToFile(Console &console, const IconCommandArguments &arguments, const QImage &source)
{
    const int size = arguments.sizes.constFirst();
    if (arguments.isForStdout()) {
        const Result<QByteArray> png = customIconFile(source, size, arguments.cornerMode(), arguments.source);
        if (!png) {
            console.complain(png.failure());
            return ExitStatus::Refused;
        }
        console.print(png.value());
        return ExitStatus::Done;
    }
    const Result<QString> path = absolutePath(arguments.file);
    if (!path) {
        console.complain(path.failure());
        return ExitStatus::Refused;
    }
    const IconFile file = writeCustomIcon(source, size, arguments.cornerMode(), path.value());
    if (file.failure) {
        console.complain(Failure{file.failure->code, arguments.file, file.failure->detail});
        return ExitStatus::Refused;
    }
    console.print(path.value());
    return console.finish(ExitStatus::Done,
                          {{u"folder"_s, QFileInfo(file.path).path()},
                           {u"files"_s, QJsonArray{QJsonObject{
                                            {u"path"_s, file.path}, {u"size"_s, file.size}, {u"bytes"_s, file.bytes}}}},
                           {u"icns"_s, QJsonValue()}});
}

ExitStatus writeToFolder(Console &console, const IconCommandArguments &arguments, const QImage &source)
{
    const Result<ExportFolder> folder = arguments.place.open(u"icons"_s);
    if (!folder) {
        console.complain(folder.failure());
        return ExitStatus::Refused;
    }
    const Interruption interruption;
    IconExport result;
    result.folder = folder.value();
    QString place = result.folder.path;
    if (!arguments.place.isExact()) {
        place += QLatin1StringView(customFolderSuffix);
        if (const Outcome made = createFolder(place); !made)
            result.folderFailure = made.failure();
    }
    for (const int size : arguments.sizes) {
        result.isStopped = Interruption::isRequested();
        if (result.folderFailure || result.isStopped)
            break;
        const QString path = place + customIconName(size, arguments.cornerMode());
        result.files.append(writeCustomIcon(source, size, arguments.cornerMode(), path));
    }
    return reportIcons(console, result, arguments.sizes.size());
}

ExitStatus runIcon(Console &console, IconCommandArguments &arguments)
{
    if (const std::optional<Complaint> problem = misuseOfFile(console, arguments)) {
        console.complain(*problem);
        return ExitStatus::Usage;
    }
    const Result<QImage> source = iconSource(arguments);
    if (!source) {
        console.complain(source.failure());
        return ExitStatus::Refused;
    }
    return arguments.file.isEmpty() ? writeToFolder(console, arguments, source.value())
                                    : writeToFile(console, arguments, source.value());
}

} // namespace

CommandBody declareIconCommand(Declaration &declaration)
{
    const auto arguments = std::make_shared<IconCommandArguments>();
    arguments->declareOn(declaration, "CLI_ICON_SOURCE", {u"--output"_s});
    declaration.option("--output", &arguments->file, "FILE", "CLI_ICON_OUTPUT").letter(u'o').in(ArgumentGroup::Output);
    declaration.option("--size", &arguments->sizes, "N", "CLI_ICON_SIZE").range(1, sourceIconSize).list().required();
    declaration.option("--corners", &arguments->corners, "STYLE", "CLI_ICON_CORNERS")
        .words({u"none"_s, u"ios6"_s, u"ios7"_s});
    declaration.example("lumora icon logo.png --size 16,32,64 --out build");
    declaration.example("lumora icon logo.png --size 180 --corners ios7 -o touch.png");
    return [arguments](Console &console) { return runIcon(console, *arguments); };
}

} // namespace lumora
