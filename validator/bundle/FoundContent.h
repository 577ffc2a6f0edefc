// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace lumora
{

/// The content of a file or folder that should be an app package.
enum class FoundKind {
    Nothing, ///< no file of the name
    Folder,
    NoOrdinaryFile, ///< a pipe, a socket or a device
    Unreadable,     ///< the system refuses to read it
    EmptyFile,      ///< no bytes
    Text,
    Picture,
    Document,      ///< a PDF
    OtherArchive,  ///< packed, but not a zip archive
    Data,          ///< none of these
    BrokenArchive, ///< begins like a zip archive, whose list of files cannot be read
    EmptyArchive,  ///< a zip archive without a single file
    ArchiveWithoutApp,
};

struct FoundContent
{
    /// The most names that are listed.
    static constexpr qsizetype mostNames = 5;

    FoundKind kind = FoundKind::Data;
    /// For an archive without an app: the names at its root, or in its Payload folder if it has one.
    QStringList names;
    qsizetype nameCount = 0; ///< the number of all names
    bool hasPayload = false;
};

/// Reads the file's first bytes, or the list of files of an archive. Unpacks nothing and never blocks.
FoundContent foundContent(const QString &path);

/// The kind of file according to its first bytes, at most `foundContentBytes` of them.
FoundKind kindOfBytes(const QByteArray &start);

inline constexpr qsizetype foundContentBytes = 4096;

} // namespace lumora
