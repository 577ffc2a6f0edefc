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

/// The folder below which an extraction may write. Every step of a path is opened relative to the previous one without
/// following links, so that no name and no link leads out of the folder.
class ExtractionFolder
{
public:
    /// Makes the folder and its missing parents. Links on the way to the destination itself are the user's own and are
    /// followed.
    static Result<ExtractionFolder> open(const QString &path);

    const QString &path() const { return m_path; }

    /// Makes the folder with these steps, parents included. Fails with `InvalidValue` if the name is the reason: it has
    /// a file as a folder, or is too long. Fails with `CannotWrite` if the system is the reason.
    Outcome makeFolder(const QList<QByteArray> &steps);
    /// True when something exists at the steps; links are not followed.
    bool exists(const QList<QByteArray> &steps);
    /// Makes the parent folders, then opens and empties the regular file at the steps for writing. Fails as
    /// `makeFolder` does, and with `InvalidValue` if something other than a regular file has the name.
    Result<FileDescriptor> createFile(const QList<QByteArray> &steps);

    /// The number of folders made so far.
    std::uint64_t foldersMade() const { return m_foldersMade; }
    /// Bytes that an ordinary user can still write to the file system.
    std::uint64_t freeBytes() const;

private:
    ExtractionFolder(QString path, FileDescriptor root) : m_path(std::move(path)), m_root(std::move(root)) {}

    /// The descriptor of the folder at the steps, which is made if missing; -1 when it cannot be reached, with the
    /// reason in `errno`. Owned by this object and valid until the next call.
    int reach(const QList<QByteArray> &steps);

    QString m_path;
    FileDescriptor m_root;
    /// The last folder, kept because archives list a folder's files one after the other.
    FileDescriptor m_last;
    QList<QByteArray> m_lastSteps;
    std::uint64_t m_foldersMade = 0;
};

} // namespace lumora
