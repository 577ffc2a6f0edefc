// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

namespace lumora
{

/// The text of an archive entry's stored name: UTF-8 if the bytes are valid UTF-8 (even if the entry's flag does not
/// say so, as most Unix tools never set it), else the PC character set, code page 437. Ends at the first zero byte.
QString entryNameText(const QByteArray &stored);

/// True when the stored name ends in "/" or "\", which means that the entry is a folder.
bool isFolderEntry(const QByteArray &stored);

/// The name with every "\" replaced by "/".
QString withForwardSlashes(QString name);

/// The folders and the name on the way from the destination to the entry, in UTF-8, without empty and "." steps.
/// `std::nullopt` when the name would leave the destination (absolute, with a drive letter, with a ".." step) or is not
/// possible in a file system (longer than `longestEntryPath` bytes, deeper than `deepestEntryPath` folders). An empty
/// list is the destination itself.
std::optional<QList<QByteArray>> safeSteps(const QString &name);

constexpr qsizetype longestEntryPath = 2048; ///< bytes; keeps every path below the system's limit of 4096
constexpr qsizetype deepestEntryPath = 100;  ///< steps; real packages stay below 20

} // namespace lumora
