// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QString>
#include <QStringList>

namespace lumora
{

/// Writes a file and the folders on its way; false when it could not.
inline bool putFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
           file.write(content) == content.size();
}

/// The content of a file; null where there is none.
inline QByteArray contentOfFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Every file in the folder and below, hidden ones too, by its path from there, in order.
inline QStringList filesBelowFolder(const QString &folder)
{
    QStringList files;
    QDirIterator below(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (below.hasNext())
        files << QDir(folder).relativeFilePath(below.next());
    files.sort();
    return files;
}

} // namespace lumora
