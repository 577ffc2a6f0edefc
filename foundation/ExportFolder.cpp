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

bool isTaken(const QString &path)
{
    const QFileInfo info(path);
    // exists() follows links; a broken link takes the name all the same.
    return info.exists() || info.isSymLink();
}

} // namespace

QString ExportFolder::name() const
{
    return QFileInfo(path).fileName();
}

ExportFolder freshExportFolder(const QString &destination, const QString &baseName)
{
    const QString base = destination + u'/' + baseName;
    if (!isTaken(base))
        return {base, false};
    logLine(QStringLiteral("Folder exists!"));
    for (int number = 1;; ++number) {
        const QString candidate = base + u'_' + QString::number(number);
        if (!isTaken(candidate))
            return {candidate, true};
    }
}

QString createFolder(const QString &path)
{
    if (::mkdir(QFile::encodeName(path).constData(), 0777) == 0)
        return {};
    return qt_error_string(errno);
}

} // namespace lumora
