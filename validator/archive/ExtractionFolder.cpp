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

namespace
{

/// True for failures that the names of an archive's entries alone can cause: a name that has a file as a folder, is
/// that of a folder, or is too long.
bool isTheNamesFault(int error)
{
    switch (error) {
    case EEXIST:
    case EINVAL:
    case EISDIR:
    case ELOOP:
    case ENAMETOOLONG:
    case ENOENT:
    case ENOTDIR:
    case ENXIO:
        return true;
    default:
        return false;
    }
}

/// The failure to make the file or folder at the steps; `errno` gives the reason.
Failure notMade(const QList<QByteArray> &steps)
{
    const FailureCode code = isTheNamesFault(errno) ? FailureCode::InvalidValue : FailureCode::CannotWrite;
    return systemFailure(code, QString::fromUtf8(steps.join('/')));
}

} // namespace

Result<ExtractionFolder> ExtractionFolder::open(const QString &path)
{
    QDir().mkpath(path);
    FileDescriptor root(::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!root.valid())
        return systemFailure(FailureCode::CannotCreateFolder, path);
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
            // If the folder could not be made, that is the reason, not that it is missing now.
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

Outcome ExtractionFolder::makeFolder(const QList<QByteArray> &steps)
{
    if (reach(steps) < 0)
        return notMade(steps);
    return Done{};
}

bool ExtractionFolder::exists(const QList<QByteArray> &steps)
{
    if (steps.isEmpty())
        return true;
    const int parent = reach(steps.first(steps.size() - 1));
    struct stat status = {};
    return parent >= 0 && ::fstatat(parent, steps.last().constData(), &status, AT_SYMLINK_NOFOLLOW) == 0;
}

Result<FileDescriptor> ExtractionFolder::createFile(const QList<QByteArray> &steps)
{
    if (steps.isEmpty())
        return Failure{FailureCode::InvalidValue, {}, {}};
    const int parent = reach(steps.first(steps.size() - 1));
    if (parent < 0)
        return notMade(steps);
    // A pipe or device of that name must not block the extraction or receive the bytes.
    FileDescriptor file(
        ::openat(parent, steps.last().constData(), O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0666));
    struct stat status = {};
    if (!file.valid() || ::fstat(file.number(), &status) != 0)
        return notMade(steps);
    if (!S_ISREG(status.st_mode)) {
        errno = EEXIST;
        return notMade(steps);
    }
    if (status.st_size > 0 && ::ftruncate(file.number(), 0) != 0)
        return notMade(steps);
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
