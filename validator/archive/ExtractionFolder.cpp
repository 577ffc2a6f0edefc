// SPDX-License-Identifier: MIT
#include "ExtractionFolder.h"

#include <QDir>
#include <QFile>

#include <cerrno>
#include <limits>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace lumora
{

Result<ExtractionFolder> ExtractionFolder::open(const QString &path)
{
    QDir().mkpath(path);
    FileDescriptor root(::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!root.valid())
        return Failure{FailureCode::CannotCreateFolder, path, qt_error_string(errno)};
    return ExtractionFolder(path, std::move(root));
}

int ExtractionFolder::reach(const QList<QByteArray> &steps)
{
    if (steps.isEmpty())
        return m_root.number();
    if (m_last.valid() && steps == m_lastSteps)
        return m_last.number();
    FileDescriptor current;
    for (const QByteArray &step : steps) {
        const int parent = current.valid() ? current.number() : m_root.number();
        const bool made = ::mkdirat(parent, step.constData(), 0777) == 0;
        const int reason = errno;
        if (made)
            ++m_foldersMade;
        FileDescriptor next(::openat(parent, step.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
        if (!next.valid()) {
            // Where the folder could not be made, that is the reason, and not that it is missing now.
            if (!made && reason != EEXIST)
                errno = reason;
            return -1;
        }
        current = std::move(next);
    }
    m_last = std::move(current);
    m_lastSteps = steps;
    return m_last.number();
}

bool ExtractionFolder::makeFolder(const QList<QByteArray> &steps)
{
    return reach(steps) >= 0;
}

bool ExtractionFolder::exists(const QList<QByteArray> &steps)
{
    if (steps.isEmpty())
        return true;
    const int parent = reach(steps.first(steps.size() - 1));
    struct stat status = {};
    return parent >= 0 && ::fstatat(parent, steps.last().constData(), &status, AT_SYMLINK_NOFOLLOW) == 0;
}

FileDescriptor ExtractionFolder::createFile(const QList<QByteArray> &steps)
{
    if (steps.isEmpty())
        return {};
    const int parent = reach(steps.first(steps.size() - 1));
    if (parent < 0)
        return {};
    // A pipe or device that stands at the name must neither block the walk nor receive the bytes.
    FileDescriptor file(
        ::openat(parent, steps.last().constData(), O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0666));
    struct stat status = {};
    if (!file.valid() || ::fstat(file.number(), &status) != 0)
        return {};
    if (!S_ISREG(status.st_mode)) {
        errno = EEXIST;
        return {};
    }
    if (status.st_size > 0 && ::ftruncate(file.number(), 0) != 0)
        return {};
    return file;
}

std::uint64_t ExtractionFolder::freeBytes() const
{
    struct statvfs status = {};
    if (::fstatvfs(m_root.number(), &status) != 0)
        return std::numeric_limits<std::uint64_t>::max();
    return std::uint64_t{status.f_bavail} * status.f_frsize;
}

} // namespace lumora
