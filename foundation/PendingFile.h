// SPDX-License-Identifier: MIT
#pragma once

#include "FileDescriptor.h"
#include "Result.h"

#include <QByteArray>

namespace lumora
{

/// A file that gets its name only once its content is complete. A full disk or a killed process leaves no partial file
/// under that name and does not destroy the file that had the name before. Until then the file has no name at all if
/// the file system allows that. Otherwise, and while it replaces an old file, it has a hidden name beside the real one.
/// If a killed process left a file under the hidden name, the next write of the same file removes it.
class PendingFile
{
public:
    /// Begins a file for `path` (in the file system's own encoding, no symbolic link). `NoPermission` where the folder
    /// may not be written to, else `CannotWrite`. Here and below the caller adds the failure's subject.
    static Result<PendingFile> begin(const QByteArray &path);
    PendingFile(PendingFile &&) noexcept;
    PendingFile &operator=(PendingFile &&) = delete;
    /// Removes the file if it was not published.
    ~PendingFile();

    Outcome write(const QByteArray &bytes);
    /// Gives the file its name. Replaces a regular file of that name and keeps its permissions.
    Outcome publish();

private:
    explicit PendingFile(QByteArray path) : m_path(std::move(path)) {}

    /// When the four functions below return false, the reason is in `errno`.
    bool open();
    bool openNamed(const QByteArray &name);
    bool linkTo(const QByteArray &name) const;
    bool flush() const;

    QByteArray m_path;
    QByteArray m_temporaryName; ///< empty while the file has no name
    FileDescriptor m_file;
};

} // namespace lumora
