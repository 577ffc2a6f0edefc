// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"
#include "validator/archive/ExtractionFolder.h"

#include <QString>

#include <memory>

namespace lumora
{

/// A private folder on disk for what is unpacked while the program runs; removed, with all that is in it, when the
/// object goes. A lock marks it as in use, so that what a process that was killed left behind is removed by the next
/// one.
class WorkFolder
{
public:
    /// Makes a fresh folder, readable for this user only, below TMPDIR, else /var/tmp, else /tmp.
    static Result<std::unique_ptr<WorkFolder>> make();
    /// The same below a folder of the caller's choice.
    static Result<std::unique_ptr<WorkFolder>> make(const QString &parent);
    /// A fresh folder that is the process's current one until it goes. What the user names by relative path has to be
    /// resolved before. Programs that are started meanwhile begin in the folder that was current before: they may
    /// outlive this one. One such folder at a time.
    static Result<std::unique_ptr<WorkFolder>> makeCurrent();
    ~WorkFolder();
    Q_DISABLE_COPY_MOVE(WorkFolder)

    const QString &path() const { return m_path; }

private:
    WorkFolder(QString path, FileDescriptor lock) : m_path(std::move(path)), m_lock(std::move(lock)) {}

    QString m_path;
    QString m_before; ///< the process's current folder until this one took its place; empty where it did not
    FileDescriptor m_lock;
    FileDescriptor m_start; ///< the folder of `m_before`, for the programs that are started
};

} // namespace lumora
