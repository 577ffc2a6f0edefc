// SPDX-License-Identifier: MIT
#include "FilesOnDisk.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

namespace lumora
{

bool putFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
           file.write(content) == content.size();
}

QByteArray contentOfFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList filesBelowFolder(const QString &folder)
{
    QStringList files;
    QDirIterator below(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (below.hasNext())
        files << QDir(folder).relativeFilePath(below.next());
    files.sort();
    return files;
}

} // namespace lumora
