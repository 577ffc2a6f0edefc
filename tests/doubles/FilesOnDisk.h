// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace lumora
{

/// Writes a file and the folders on its way; false when it could not.
bool putFile(const QString &path, const QByteArray &content);

/// The content of a file; null where there is none.
QByteArray contentOfFile(const QString &path);

/// Every file in the folder and below, hidden ones too, by its path from there, in order.
QStringList filesBelowFolder(const QString &folder);

} // namespace lumora
