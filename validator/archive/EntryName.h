// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

namespace lumora
{

/// The text of an archive entry's stored name: UTF-8 where the bytes are valid UTF-8 (whether the entry says so or
/// not: most tools on Unix never say so), else the PC character set, code page 437. Ends at the first zero byte.
QString entryNameText(const QByteArray &stored);

/// True when the stored name ends in "/" or "\", that is, when the entry is a folder.
bool isFolderEntry(const QByteArray &stored);

/// The name with "/" for every "\".
QString withForwardSlashes(QString name);

/// The steps from the destination down to the entry, in UTF-8; empty and "." steps are left out. Nothing when the name
/// would leave the destination (absolute, with a drive letter, with a ".." step) or cannot stand in a file system
/// (longer than `longestEntryPath` bytes, deeper than `deepestEntryPath` folders). An empty list is the destination
/// itself.
std::optional<QList<QByteArray>> safeSteps(const QString &name);

constexpr qsizetype longestEntryPath = 2048; ///< bytes; keeps every path below the system's limit of 4096
constexpr qsizetype deepestEntryPath = 100;  ///< steps; real packages stay below 20

} // namespace lumora
