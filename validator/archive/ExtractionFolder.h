// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/FileDescriptor.h"
#include "foundation/Result.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <cstdint>

namespace lumora
{

/// The one folder below which an extraction may write. Every step of a path is opened from the one before it without
/// following links, so that no name and no link that lies in the way leads out of it.
class ExtractionFolder
{
public:
    /// Makes the folder and its parents where they are missing. Links on the way to the destination itself are the
    /// user's own and are followed.
    static Result<ExtractionFolder> open(const QString &path);

    const QString &path() const { return m_path; }

    /// Makes the folder with these steps, parents included. `InvalidValue` where the name itself is the reason: it goes
    /// through a file or is too long. `CannotWrite` where the system is.
    Outcome makeFolder(const QList<QByteArray> &steps);
    /// True when something exists at the steps; a link counts as itself.
    bool exists(const QList<QByteArray> &steps);
    /// Opens the regular file at the steps for writing, emptied, its parent folders made first. Fails as `makeFolder`
    /// does, with `InvalidValue` too where something other than a regular file has the name.
    Result<FileDescriptor> createFile(const QList<QByteArray> &steps);

    /// Folders made so far.
    std::uint64_t foldersMade() const { return m_foldersMade; }
    /// Bytes that an ordinary user can still write to the file system.
    std::uint64_t freeBytes() const;

private:
    ExtractionFolder(QString path, FileDescriptor root) : m_path(std::move(path)), m_root(std::move(root)) {}

    /// Descriptor of the folder at the steps, made where it is missing; -1 when it cannot be reached, with the reason
    /// in `errno`. Belongs to this object and lasts until the next call.
    int reach(const QList<QByteArray> &steps);

    QString m_path;
    FileDescriptor m_root;
    /// The folder reached last: archives list a folder's files one after the other.
    FileDescriptor m_last;
    QList<QByteArray> m_lastSteps;
    std::uint64_t m_foldersMade = 0;
};

} // namespace lumora
