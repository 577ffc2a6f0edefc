// SPDX-License-Identifier: MIT
#include "StartFolder.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace lumora
{

QString existingStartFolder(const QString &wanted)
{
    const QString start =
        wanted.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) : wanted;
    QString folder = QDir::cleanPath(QFileInfo(start).absoluteFilePath());
    while (!QFileInfo(folder).isDir())
        folder = QFileInfo(folder).absolutePath();
    return folder;
}

} // namespace lumora
