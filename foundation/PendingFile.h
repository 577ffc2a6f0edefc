// SPDX-License-Identifier: MIT
#pragma once

#include "FileDescriptor.h"
#include "Result.h"

#include <QByteArray>

namespace lumora
{

/// A file that gets its name only once its content is whole. Neither a full disk nor a killed process leaves a torso
/// under that name or costs the file that had it before. Where the file system can, the file has no name at all until
/// then; elsewhere, and for the moment in which it replaces an old file, it has a hidden name beside it. A file that a
/// killed process left under the hidden name is removed when the same file is written again.
class PendingFile
{
public:
    /// Begins a file for `path` (in the file system's own encoding, no symbolic link). `NoPermission` where the folder
    /// may not be written to, else `CannotWrite`; a failure's subject is left to the caller here and below.
    static Result<PendingFile> begin(const QByteArray &path);
    PendingFile(PendingFile &&) noexcept;
    PendingFile &operator=(PendingFile &&) = delete;
    /// Drops what was never published.
    ~PendingFile();

    Outcome write(const QByteArray &bytes);
    /// Gives the file its name. A regular file that has the name is replaced; its permissions are kept.
    Outcome publish();

private:
    explicit PendingFile(QByteArray path) : m_path(std::move(path)) {}

    /// The four below leave the reason in `errno` when they return false.
    bool open();
    bool openNamed(const QByteArray &name);
    bool linkTo(const QByteArray &name) const;
    bool flush() const;

    QByteArray m_path;
    QByteArray m_temporaryName; ///< empty while the file has no name
    FileDescriptor m_file;
};

} // namespace lumora
