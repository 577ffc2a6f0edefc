// SPDX-License-Identifier: MIT
#include "ExportFolder.h"

#include "Log.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// The error number, 0 when the folder was made.
int makeFolder(const QString &path)
{
    return ::mkdir(QFile::encodeName(path).constData(), 0777) == 0 ? 0 : errno;
}

/// The error number: EEXIST for a name that is in use, 0 when the folder was made. Looking first is not enough, since
/// two runs may start together. Making without looking is not enough either: for an existing folder some file systems
/// report another error than EEXIST.
int makeFreshFolder(const QString &path)
{
    const QFileInfo info(path);
    // exists() follows links, but a broken link occupies the name, too.
    return info.exists() || info.isSymLink() ? EEXIST : makeFolder(path);
}

} // namespace

QString ExportFolder::name() const
{
    return QFileInfo(path).fileName();
}

Result<ExportFolder> makeExportFolder(const QString &destination, const QString &baseName)
{
    const QString base = destination + u'/' + baseName;
    ExportFolder folder{base, false};
    int error = makeFreshFolder(base);
    if (error == EEXIST)
        logLine(u"Folder exists!"_s);
    for (int number = 1; error == EEXIST; ++number) {
        folder = {base + u'_' + QString::number(number), true};
        error = makeFreshFolder(folder.path);
    }
    if (error == 0)
        return folder;
    const Failure failure{FailureCode::CannotCreateFolder, folder.path, qt_error_string(error)};
    logLine(u"Folder error: "_s + failure.detail.words());
    return failure;
}

Outcome createFolder(const QString &path)
{
    const int error = makeFolder(path);
    if (error == 0)
        return Done{};
    return Failure{FailureCode::CannotCreateFolder, path, qt_error_string(error)};
}

Outcome createFolderWithParents(const QString &path)
{
    int error = makeFolder(path);
    if (error == ENOENT) {
        const QString parent = QFileInfo(path).path();
        if (parent != path) {
            const Outcome made = createFolderWithParents(parent);
            if (!made)
                return Failure{FailureCode::CannotCreateFolder, path, made.failure().detail};
            error = makeFolder(path);
        }
    }
    // Some file systems report another error than EEXIST for an existing folder.
    if (error == 0 || QFileInfo(path).isDir())
        return Done{};
    return Failure{FailureCode::CannotCreateFolder, path, qt_error_string(error)};
}

} // namespace lumora
