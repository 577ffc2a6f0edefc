// SPDX-License-Identifier: MIT
#include "IconReport.h"

#include "icons/IconExport.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

QJsonObject resultJson(const IconExport &result)
{
    QJsonArray files;
    for (const IconFile &file : result.files) {
        if (!file.failure)
            files.append(QJsonObject{{u"path"_s, file.path}, {u"size"_s, file.size}, {u"bytes"_s, file.bytes}});
    }
    return {{u"folder"_s, result.folder.path},
            {u"files"_s, files},
            {u"icns"_s, result.icns.isEmpty() ? QJsonValue() : QJsonValue(result.icns)}};
}

/// The files that are not there, by their paths inside the export folder.
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

} // namespace

ExitStatus reportIcons(Console &console, const IconExport &result, IconReportForm form)
{
    if (result.folderFailure) {
        console.complain(*result.folderFailure);
        return ExitStatus::Refused;
    }
    if (form == IconReportForm::Json)
        console.print(QJsonDocument(resultJson(result)));
    else
        console.print(result.folder.path);
    const QList<Failure> failures = result.failures();
    if (failures.isEmpty())
        return ExitStatus::Done;
    console.complain(failures.first());
    console.complain(u"missing in %1: %2"_s.arg(result.folder.path, missingFiles(result).join(u", "_s)));
    return ExitStatus::Refused;
}

} // namespace lumora
