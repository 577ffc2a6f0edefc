// SPDX-License-Identifier: MIT
#include "PendingFile.h"

#include "DescriptorWriting.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lumora
{

namespace
{

QByteArray folderOf(const QByteArray &path)
{
    const qsizetype slash = path.lastIndexOf('/');
    if (slash < 0)
        return QByteArrayLiteral(".");
    return slash == 0 ? QByteArrayLiteral("/") : path.first(slash);
}

QByteArray linkOf(int descriptor)
{
    return "/proc/self/fd/" + QByteArray::number(descriptor);
}

/// The hidden name beside the file's; whoever finds it taken by a file that is being written takes the next number.
QByteArray siblingOf(const QByteArray &path, int number)
{
    const qsizetype nameAt = path.lastIndexOf('/') + 1;
    // The suffix must not push a long name over the file system's limit.
    QByteArray name = path.sliced(nameAt).first(qMin<qsizetype>(path.size() - nameAt, 200)) + ".lumora-pending";
    if (number > 0)
        name += '.' + QByteArray::number(number);
    return path.first(nameAt) + '.' + name;
}

/// Every writer holds this lock from the moment its file has a name. False when another holds it; a file system without
/// locks has nobody to tell.
bool lock(int descriptor)
{
    return ::flock(descriptor, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

/// Removes the file under this name if it is one that a killed process of this user left: nobody holds its lock.
bool removeAbandoned(const QByteArray &name)
{
    const int descriptor = ::open(name.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0)
        return errno == ENOENT;
    struct stat status = {};
    const bool abandoned = ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) &&
                           status.st_uid == ::geteuid() && ::flock(descriptor, LOCK_EX | LOCK_NB) == 0;
    // Renamed by its writer before it could be locked, it is no longer what stands under the name.
    struct stat named = {};
    const bool same = abandoned && ::lstat(name.constData(), &named) == 0 && named.st_ino == status.st_ino;
    const bool removed = abandoned && (!same || ::unlink(name.constData()) == 0);
    ::close(descriptor);
    return removed;
}

/// Makes a file under the first sibling's name that is free or was abandoned, by `make`, which answers whether it could
/// and leaves the reason in `errno`; empty when it could not.
template <typename Make> QByteArray makeSibling(const QByteArray &path, Make make)
{
    constexpr int writersAtOnce = 100;
    int number = 0;
    while (number < writersAtOnce) {
        const QByteArray name = siblingOf(path, number);
        if (make(name))
            return name;
        if (errno != EEXIST)
            return {};
        if (!removeAbandoned(name))
            ++number;
    }
    errno = EEXIST;
    return {};
}

} // namespace

PendingFile::PendingFile(QByteArray path) : m_path(std::move(path))
{
    // A file without a name gets one through /proc; where that is missing, it never could.
    m_descriptor = ::open(folderOf(m_path).constData(), O_TMPFILE | O_WRONLY | O_CLOEXEC, 0666);
    if (m_descriptor >= 0 && ::access(linkOf(m_descriptor).constData(), F_OK) == 0)
        return;
    close();
    // Systems without such files answer with EOPNOTSUPP, EISDIR or EINVAL; every other error is the folder's own and
    // comes again.
    m_temporaryName = makeSibling(m_path, [this](const QByteArray &name) { return openNamed(name); });
    if (m_temporaryName.isEmpty())
        fail();
}

PendingFile::~PendingFile()
{
    // In this order: without the lock the name may be another's by then.
    if (!m_temporaryName.isEmpty())
        ::unlink(m_temporaryName.constData());
    close();
}

bool PendingFile::write(const QByteArray &bytes)
{
    return writeAll(m_descriptor, bytes) || fail();
}

bool PendingFile::publish()
{
    struct stat before;
    if (::stat(m_path.constData(), &before) == 0)
        ::fchmod(m_descriptor, before.st_mode & 07777);
    if (m_temporaryName.isEmpty()) {
        if (linkTo(m_path))
            return close() || fail();
        if (errno != EEXIST)
            return fail();
        lock(m_descriptor);
        m_temporaryName = makeSibling(m_path, [this](const QByteArray &name) { return linkTo(name); });
        if (m_temporaryName.isEmpty())
            return fail();
    }
    if (!flush() || ::rename(m_temporaryName.constData(), m_path.constData()) != 0)
        return fail();
    m_temporaryName.clear();
    close();
    return true;
}

bool PendingFile::fail()
{
    m_error = errno;
    return false;
}

bool PendingFile::close()
{
    const int descriptor = m_descriptor;
    m_descriptor = -1;
    return descriptor < 0 || ::close(descriptor) == 0;
}

bool PendingFile::flush()
{
    // Network file systems report lost writes when a descriptor is closed; the old file must not have gone by then, nor
    // the lock, which the other descriptor keeps.
    const int copy = ::fcntl(m_descriptor, F_DUPFD_CLOEXEC, 0);
    return copy >= 0 && ::close(copy) == 0;
}

bool PendingFile::openNamed(const QByteArray &name)
{
    m_descriptor = ::open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (m_descriptor < 0)
        return false;
    // Between the two calls it may have been taken for an abandoned one.
    struct stat status = {};
    if (lock(m_descriptor) && ::fstat(m_descriptor, &status) == 0 && status.st_nlink > 0)
        return true;
    close();
    errno = EEXIST;
    return false;
}

bool PendingFile::linkTo(const QByteArray &name) const
{
    return ::linkat(AT_FDCWD, linkOf(m_descriptor).constData(), AT_FDCWD, name.constData(), AT_SYMLINK_FOLLOW) == 0;
}

} // namespace lumora
