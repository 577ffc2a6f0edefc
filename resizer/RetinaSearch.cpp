// SPDX-License-Identifier: MIT
#include "RetinaSearch.h"

#include "RetinaName.h"

#include <QDir>

namespace lumora
{

namespace
{

void search(const QString &path, RetinaSearch &found)
{
    const QDir folder(path);
    if (!folder.isReadable()) {
        found.failures.push_back({FailureCode::NoPermission, path, {}});
        return;
    }
    const QFileInfoList entries = folder.entryInfoList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot, QDir::Unsorted);
    for (const QFileInfo &entry : entries) {
        const QString entryPath = entry.absoluteFilePath();
        if (entry.isDir() && !entry.isSymLink())
            search(entryPath, found);
        else if (entry.isFile() && isDoubleResolution(entryPath))
            found.files << entryPath;
    }
}

} // namespace

RetinaSearch findDoubleResolution(const QString &folder)
{
    RetinaSearch found;
    search(QDir(folder).absolutePath(), found);
    std::sort(found.files.begin(), found.files.end());
    return found;
}

} // namespace lumora
