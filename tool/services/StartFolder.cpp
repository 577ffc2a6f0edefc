// SPDX-License-Identifier: MIT
#include "StartFolder.h"

#include "foundation/StoppableRead.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace lumora
{

bool isFolderOnDisk(const QString &path)
{
    return QFileInfo(path).isDir();
}

QString existingStartFolder(const QString &wanted, const FolderProbe &isFolder)
{
    const QString start =
        wanted.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) : wanted;
    const std::function<QString()> search = [isFolder, first = QDir::cleanPath(QFileInfo(start).absoluteFilePath())] {
        QString folder = first;
        while (!isFolder(folder))
            folder = QFileInfo(folder).absolutePath();
        return folder;
    };
    // The dialog waits for the answer: the search has only the time that every stopped one has.
    std::stop_source stop;
    stop.request_stop();
    return unlessStopped(search, stop.get_token()).value_or(QDir::homePath());
}

} // namespace lumora
