// SPDX-License-Identifier: MIT
#include "PendingFile.h"

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

/// The hidden name beside the file's own. If another process writes a file under it, the caller takes the next number.
QByteArray siblingOf(const QByteArray &path, int number)
{
    const qsizetype nameAt = path.lastIndexOf('/') + 1;
    // The suffix must not push a long name over the file system's limit.
    QByteArray name = path.sliced(nameAt).first(qMin<qsizetype>(path.size() - nameAt, 200)) + ".lumora-pending";
    if (number > 0)
        name += '.' + QByteArray::number(number);
    return path.first(nameAt) + '.' + name;
}

/// Every writer holds this lock from the moment its file has a name. Returns false when another process holds it, and
/// true on a file system without locks.
bool lock(int descriptor)
{
    return ::flock(descriptor, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

/// Removes the file under this name if a killed process of this user left it: nobody holds its lock.
bool removeAbandoned(const QByteArray &name)
{
    const FileDescriptor file(::open(name.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (!file.valid())
        return errno == ENOENT;
    struct stat status = {};
    const bool abandoned = ::fstat(file.number(), &status) == 0 && S_ISREG(status.st_mode) &&
                           status.st_uid == ::geteuid() && ::flock(file.number(), LOCK_EX | LOCK_NB) == 0;
    // The writer may have renamed the file before it was locked; then the name belongs to another file or to none.
    struct stat named = {};
    const bool same = abandoned && ::lstat(name.constData(), &named) == 0 && named.st_ino == status.st_ino;
    return abandoned && (!same || ::unlink(name.constData()) == 0);
}

/// Calls `make` with the first hidden name that is free or abandoned. Empty when `make` returns false; the reason is in
/// `errno`.
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

Result<PendingFile> PendingFile::begin(const QByteArray &path)
{
    PendingFile file(path);
    if (file.open())
        return file;
    const bool denied = errno == EACCES || errno == EPERM;
    return systemFailure(denied ? FailureCode::NoPermission : FailureCode::CannotWrite, {});
}

PendingFile::PendingFile(PendingFile &&other) noexcept
    : m_path(std::move(other.m_path)), m_temporaryName(std::exchange(other.m_temporaryName, {})),
      m_file(std::move(other.m_file))
{
}

PendingFile::~PendingFile()
{
    // Removed before closing the descriptor releases the lock: after that the name may belong to another writer.
    if (!m_temporaryName.isEmpty())
        ::unlink(m_temporaryName.constData());
}

Outcome PendingFile::write(const QByteArray &bytes)
{
    return writeAll(m_file, bytes);
}

Outcome PendingFile::publish()
{
    struct stat before = {};
    if (::stat(m_path.constData(), &before) == 0)
        ::fchmod(m_file.number(), before.st_mode & 07777);
    if (m_temporaryName.isEmpty()) {
        if (linkTo(m_path))
            return m_file.close();
        if (errno != EEXIST)
            return systemFailure(FailureCode::CannotWrite, {});
        lock(m_file.number());
        m_temporaryName = makeSibling(m_path, [this](const QByteArray &name) { return linkTo(name); });
        if (m_temporaryName.isEmpty())
            return systemFailure(FailureCode::CannotWrite, {});
    }
    if (!flush() || ::rename(m_temporaryName.constData(), m_path.constData()) != 0)
        return systemFailure(FailureCode::CannotWrite, {});
    m_temporaryName.clear();
    m_file = {};
    return Done{};
}

bool PendingFile::open()
{
    // A file without a name gets its name through /proc, so /proc must be there.
    m_file = FileDescriptor(::open(folderOf(m_path).constData(), O_TMPFILE | O_WRONLY | O_CLOEXEC, 0666));
    if (m_file.valid() && ::access(linkOf(m_file.number()).constData(), F_OK) == 0)
        return true;
    m_file = {};
    // Systems without such files report EOPNOTSUPP, EISDIR or EINVAL. Every other error comes from the folder and would
    // come again.
    m_temporaryName = makeSibling(m_path, [this](const QByteArray &name) { return openNamed(name); });
    return !m_temporaryName.isEmpty();
}

bool PendingFile::flush() const
{
    // Network file systems report lost writes when a descriptor is closed. The old file must still be there then, and
    // the lock too, which the other descriptor keeps.
    FileDescriptor copy(::fcntl(m_file.number(), F_DUPFD_CLOEXEC, 0));
    return copy.valid() && copy.close();
}

bool PendingFile::openNamed(const QByteArray &name)
{
    m_file = FileDescriptor(::open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    if (!m_file.valid())
        return false;
    // Between the two calls another process may have removed the file as abandoned.
    struct stat status = {};
    if (lock(m_file.number()) && ::fstat(m_file.number(), &status) == 0 && status.st_nlink > 0)
        return true;
    m_file = {};
    errno = EEXIST;
    return false;
}

bool PendingFile::linkTo(const QByteArray &name) const
{
    return ::linkat(AT_FDCWD, linkOf(m_file.number()).constData(), AT_FDCWD, name.constData(), AT_SYMLINK_FOLLOW) == 0;
}

} // namespace lumora
