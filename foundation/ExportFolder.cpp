// SPDX-License-Identifier: MIT
#include "ExportFolder.h"

#include "Log.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>

#include <sys/stat.h>

namespace lumora
{

namespace
{

/// The error's number, 0 when the folder was made.
int makeFolder(const QString &path)
{
    return ::mkdir(QFile::encodeName(path).constData(), 0777) == 0 ? 0 : errno;
}

} // namespace

QString ExportFolder::name() const
{
    return QFileInfo(path).fileName();
}

ExportFolder makeExportFolder(const QString &destination, const QString &baseName)
{
    const QString base = destination + u'/' + baseName;
    ExportFolder folder{base, false, {}};
    // Looking first and making afterwards would let two runs that start together into one folder.
    int error = makeFolder(base);
    if (error == EEXIST)
        logLine(QStringLiteral("Folder exists!"));
    for (int number = 1; error == EEXIST; ++number) {
        folder = {base + u'_' + QString::number(number), true, {}};
        error = makeFolder(folder.path);
    }
    if (error != 0) {
        folder.error = qt_error_string(error);
        logLine(QStringLiteral("Folder error: ") + folder.error);
    }
    return folder;
}

QString createFolder(const QString &path)
{
    const int error = makeFolder(path);
    return error == 0 ? QString() : qt_error_string(error);
}

} // namespace lumora
