// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QTemporaryDir>

namespace lumora
{

/// A folder with the files of one fuzz input: for each a line with its path, its content, and between two files the
/// line "====". Paths that leave the folder are left out.
class FileTree
{
public:
    explicit FileTree(QByteArrayView input);

    QString path() const { return m_folder.path(); }
    /// Whether the path is that of the folder or below it.
    bool holds(const QString &path) const;

private:
    void add(QByteArrayView file);

    QTemporaryDir m_folder;
};

} // namespace lumora
