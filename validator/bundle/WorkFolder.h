// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/FileDescriptor.h"
#include "foundation/Result.h"

#include <QString>

#include <memory>

namespace lumora
{

/// A private folder on disk for unpacked files. The destructor removes it with all its contents. A lock marks it as in
/// use, so that the next process can remove the folder of a killed one.
class WorkFolder
{
public:
    /// Makes a new folder, readable for this user only, below TMPDIR, else /var/tmp, else /tmp.
    static Result<std::unique_ptr<WorkFolder>> make();
    /// The same below the given folder.
    static Result<std::unique_ptr<WorkFolder>> make(const QString &parent);
    ~WorkFolder();
    Q_DISABLE_COPY_MOVE(WorkFolder)

    const QString &path() const { return m_path; }

private:
    WorkFolder(QString path, FileDescriptor lock) : m_path(std::move(path)), m_lock(std::move(lock)) {}

    QString m_path;
    FileDescriptor m_lock;
};

} // namespace lumora
