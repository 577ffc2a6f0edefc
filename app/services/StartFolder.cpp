// SPDX-License-Identifier: MIT
#include "StartFolder.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace lumora
{

QString existingStartFolder(const QString &wanted)
{
    if (wanted.isEmpty())
        return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    QString folder = QDir::cleanPath(QFileInfo(wanted).absoluteFilePath());
    while (!QFileInfo(folder).isDir())
        folder = QFileInfo(folder).absolutePath();
    return folder;
}

} // namespace lumora
