// SPDX-License-Identifier: MIT
#include "FileTree.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace lumora
{

namespace
{

constexpr QByteArrayView separator = "\n====\n";
constexpr int mostFiles = 8;

/// Letters, digits and a few signs, so that the fuzzer does not play with the file system's own names.
bool isPlain(QByteArrayView path)
{
    constexpr QByteArrayView signs = "/._-@ ";
    return !path.isEmpty() && path.size() < 200 && !path.contains("..") && !path.startsWith('/') &&
           !path.endsWith('/') && std::all_of(path.begin(), path.end(), [&](char sign) {
               return (sign >= 'a' && sign <= 'z') || (sign >= 'A' && sign <= 'Z') || (sign >= '0' && sign <= '9') ||
                      signs.contains(sign);
           });
}

} // namespace

FileTree::FileTree(QByteArrayView input) : m_folder(QDir::tempPath() + QStringLiteral("/tree"))
{
    for (int i = 0; i < mostFiles && !input.isEmpty(); ++i) {
        const qsizetype end = input.indexOf(separator);
        add(end < 0 ? input : input.first(end));
        input = end < 0 ? QByteArrayView() : input.sliced(end + separator.size());
    }
}

void FileTree::add(QByteArrayView file)
{
    const qsizetype end = file.indexOf('\n');
    const QByteArrayView name = end < 0 ? file : file.first(end);
    if (!isPlain(name))
        return;
    const QString path = m_folder.filePath(QString::fromLatin1(name));
    QDir().mkpath(QFileInfo(path).path());
    QFile written(path);
    if (written.open(QIODevice::WriteOnly) && end >= 0)
        written.write(file.data() + end + 1, file.size() - end - 1);
}

bool FileTree::holds(const QString &path) const
{
    const QString clean = QDir::cleanPath(path);
    return clean == m_folder.path() || clean.startsWith(m_folder.path() + QLatin1Char('/'));
}

} // namespace lumora
