// SPDX-License-Identifier: MIT
#include "PendingFile.h"

#include "DescriptorWriting.h"

#include <QRandomGenerator>

#include <cerrno>

#include <fcntl.h>
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
    m_temporaryName = freeSibling();
    m_descriptor = ::open(m_temporaryName.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (m_descriptor < 0) {
        fail();
        m_temporaryName.clear();
    }
}

PendingFile::~PendingFile()
{
    close();
    if (!m_temporaryName.isEmpty())
        ::unlink(m_temporaryName.constData());
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
        const QByteArray sibling = freeSibling();
        if (!linkTo(sibling))
            return fail();
        m_temporaryName = sibling;
    }
    // Network file systems report lost writes here; the old file must not have gone by then.
    if (!close() || ::rename(m_temporaryName.constData(), m_path.constData()) != 0)
        return fail();
    m_temporaryName.clear();
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

QByteArray PendingFile::freeSibling() const
{
    const qsizetype nameAt = m_path.lastIndexOf('/') + 1;
    // Eight digits more must not push a long name over the file system's limit.
    return m_path.first(nameAt) + '.' + m_path.sliced(nameAt).first(qMin<qsizetype>(m_path.size() - nameAt, 200)) +
           '.' + QByteArray::number(QRandomGenerator::global()->generate(), 16);
}

bool PendingFile::linkTo(const QByteArray &name) const
{
    return ::linkat(AT_FDCWD, linkOf(m_descriptor).constData(), AT_FDCWD, name.constData(), AT_SYMLINK_FOLLOW) == 0;
}

} // namespace lumora
