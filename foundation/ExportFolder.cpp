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

/// The error's number, EEXIST for a name that is in use, 0 when the folder was made. To look is not enough, since two
/// runs may start together; nor is to make, since a file system may have another complaint of a folder that is there,
/// which would then be written into.
int makeFreshFolder(const QString &path)
{
    const QFileInfo info(path);
    // exists() follows links; a broken link takes the name all the same.
    return info.exists() || info.isSymLink() ? EEXIST : makeFolder(path);
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
    int error = makeFreshFolder(base);
    if (error == EEXIST)
        logLine(QStringLiteral("Folder exists!"));
    for (int number = 1; error == EEXIST; ++number) {
        folder = {base + u'_' + QString::number(number), true, {}};
        error = makeFreshFolder(folder.path);
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
