// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace lumora
{

/// Writes a file and its missing parent folders; returns false on failure.
bool putFile(const QString &path, const QByteArray &content);

/// The content of a file; null if there is none.
QByteArray contentOfFile(const QString &path);

/// All files in the folder and below, including hidden ones, as sorted relative paths.
QStringList filesBelowFolder(const QString &folder);

} // namespace lumora
