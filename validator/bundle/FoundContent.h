// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace lumora
{

/// What lies where an app package was expected.
enum class FoundKind {
    Nothing, ///< no file of the name
    Folder,
    NoOrdinaryFile, ///< a pipe, a socket or a device
    Unreadable,     ///< the system does not let it be read
    EmptyFile,      ///< not one byte
    Text,
    Picture,
    Document,      ///< a PDF
    OtherArchive,  ///< packed, but no zip
    Data,          ///< nothing of the above
    BrokenArchive, ///< begins like a zip archive, whose list of files cannot be read
    EmptyArchive,  ///< a zip archive without a single file
    ArchiveWithoutApp,
};

struct FoundContent
{
    /// Names listed at most; the first ones.
    static constexpr qsizetype mostNames = 5;

    FoundKind kind = FoundKind::Data;
    /// Of an archive without an app: what lies at its root, or in its Payload folder where it has one.
    QStringList names;
    qsizetype nameCount = 0; ///< how many there are
    bool hasPayload = false;
};

/// Looks at the file's first bytes, and at the list of an archive. Nothing is unpacked, and nothing is waited for.
FoundContent foundContent(const QString &path);

/// The kind that a file's first bytes, at most `foundContentBytes` of it, speak for.
FoundKind kindOfBytes(const QByteArray &start);

inline constexpr qsizetype foundContentBytes = 4096;

} // namespace lumora
