// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace lumora
{

/// A file that gets its name only once its content is whole, so that neither a full disk nor a killed process leaves a
/// torso under that name or costs the file that had it before. Where the file system can, the file has no name at all
/// until then; elsewhere, and for the moment in which it takes an old file's place, it has a hidden one beside it. What
/// a killed process left under that name goes when the same file is written again.
class PendingFile
{
public:
    /// Begins a file that is to stand at `path` (in the file system's own encoding, no symbolic link).
    explicit PendingFile(QByteArray path);
    /// Drops what was never published.
    ~PendingFile();
    PendingFile(const PendingFile &) = delete;
    PendingFile &operator=(const PendingFile &) = delete;

    /// False when no file could be begun; `error()` tells why.
    bool isOpen() const { return m_descriptor >= 0; }
    bool write(const QByteArray &bytes);
    /// Gives the file its name; a regular file that has it already is replaced and leaves its permissions behind.
    bool publish();
    /// The system's number for what went wrong last.
    int error() const { return m_error; }

private:
    bool fail();
    bool close();
    bool flush();
    bool openNamed(const QByteArray &name);
    bool linkTo(const QByteArray &name) const;

    QByteArray m_path;
    /// Empty while the file has no name.
    QByteArray m_temporaryName;
    int m_descriptor = -1;
    int m_error = 0;
};

} // namespace lumora
