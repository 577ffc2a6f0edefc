// SPDX-License-Identifier: MIT
#include "IconReport.h"

#include "cli/console/CommandText.h"
#include "cli/console/Interruption.h"
#include "icons/IconExport.h"

#include <QDir>
#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

QJsonArray writtenFiles(const IconExport &result)
{
    QJsonArray files;
    for (const IconFile &file : result.files) {
        if (!file.failure)
            files.append(QJsonObject{{u"path"_s, file.path}, {u"size"_s, file.size}, {u"bytes"_s, file.bytes}});
    }
    return files;
}

/// The missing files, by their paths inside the export folder.
QStringList missingFiles(const IconExport &result)
{
    const QDir folder(result.folder.path);
    QStringList missing;
    for (const IconFile &file : result.files) {
        if (file.failure)
            missing << folder.relativeFilePath(file.path);
    }
    if (result.icnsFailure)
        missing << folder.relativeFilePath(result.icnsFailure->subject);
    return missing;
}

void complainOfFailures(Console &console, const IconExport &result)
{
    const QList<Failure> failures = result.failures();
    if (failures.isEmpty())
        return;
    console.complain(failures.first());
    const QString missing = commandText(
        "CLI_MISSING_FILES", {{"[FOLDER]", result.folder.path}, {"[FILES]", missingFiles(result).join(u", "_s)}});
    console.complain(Complaint{Complaint::Kind::Failure, u"missing-files"_s, {}, missing, {}});
}

} // namespace

ExitStatus reportIcons(Console &console, const IconExport &result, qsizetype expected)
{
    console.endProgress();
    if (result.folderFailure) {
        console.complain(*result.folderFailure);
        return console.finish(ExitStatus::Refused);
    }
    const QJsonArray files = writtenFiles(result);
    for (const auto &file : files)
        console.note(file[u"path"].toString());
    console.print(result.folder.path);
    complainOfFailures(console, result);
    ExitStatus status = result.failures().isEmpty() ? ExitStatus::Done : ExitStatus::Refused;
    if (result.isStopped) {
        console.complain(Interruption::complaint(files.size(), expected));
        status = Interruption::status();
    }
    return console.finish(status, {{u"folder"_s, result.folder.path},
                                   {u"files"_s, files},
                                   {u"icns"_s, result.icns.isEmpty() ? QJsonValue() : QJsonValue(result.icns)}});
}

} // namespace lumora
