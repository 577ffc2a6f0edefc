// SPDX-License-Identifier: MIT
#include "WholeFile.h"

#include "DescriptorWriting.h"
#include "PendingFile.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lumora
{

namespace
{

/// An open file descriptor that closes itself.
class Descriptor
{
public:
    explicit Descriptor(int descriptor) : m_descriptor(descriptor) {}
    ~Descriptor() { close(); }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;

    bool isOpen() const { return m_descriptor >= 0; }
    int number() const { return m_descriptor; }

    /// False when the system reports that earlier writes were lost.
    bool close()
    {
        const int descriptor = m_descriptor;
        m_descriptor = -1;
        return descriptor < 0 || ::close(descriptor) == 0;
    }

private:
    int m_descriptor;
};

FailureCode openingFailure(int error)
{
    switch (error) {
    case ENOENT:
    case ENOTDIR:
    case ENAMETOOLONG:
        return FailureCode::NotFound;
    case EISDIR:
        return FailureCode::IsFolder;
    case EACCES:
    case EPERM:
        return FailureCode::NoPermission;
    default:
        return FailureCode::NotReadable;
    }
}

/// Makes writes wait until the other side has room.
bool waitsForReaders(int descriptor)
{
    const int flags = ::fcntl(descriptor, F_GETFL);
    return flags >= 0 && ::fcntl(descriptor, F_SETFL, flags & ~O_NONBLOCK) == 0;
}

/// Devices and pipes take the bytes as they come; so does a file that may be written in a folder that may not.
Outcome writeInPlace(const QString &path, const QByteArray &name, const QByteArray &bytes)
{
    // A pipe that nobody reads from would be waited for without end; one that somebody does is written at their pace.
    Descriptor file(::open(name.constData(), O_WRONLY | O_TRUNC | O_NONBLOCK | O_CLOEXEC));
    if (file.isOpen() && waitsForReaders(file.number()) && writeAll(file.number(), bytes) && file.close())
        return Done{};
    return Failure{FailureCode::CannotWrite, path, qt_error_string(errno)};
}

} // namespace

Outcome writeWholeFile(const QString &path, const QByteArray &bytes)
{
    // A link stays a link: what it points to is what is written.
    const QFileInfo info(path);
    const QByteArray name = QFile::encodeName(info.exists() ? info.canonicalFilePath() : path);
    if (info.exists() && !info.isFile())
        return writeInPlace(path, name, bytes);
    PendingFile file(name);
    if (!file.isOpen() && info.exists() && (file.error() == EACCES || file.error() == EPERM))
        return writeInPlace(path, name, bytes);
    if (file.isOpen() && file.write(bytes) && file.publish())
        return Done{};
    return Failure{FailureCode::CannotWrite, path, qt_error_string(file.error())};
}

Result<QByteArray> readWholeFile(const QString &path, qint64 limit)
{
    const Descriptor file(::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC));
    if (!file.isOpen())
        return Failure{openingFailure(errno), path, {}};
    return readWholeDescriptor(file.number(), path, limit);
}

Result<QByteArray> readWholeDescriptor(int descriptor, const QString &name, qint64 limit)
{
    struct stat status
    {
    };
    if (::fstat(descriptor, &status) != 0)
        return Failure{FailureCode::NotReadable, name, qt_error_string(errno)};
    if (S_ISDIR(status.st_mode))
        return Failure{FailureCode::IsFolder, name, {}};
    const bool regular = S_ISREG(status.st_mode);
    if (regular && status.st_size > limit)
        return Failure{FailureCode::TooLarge, name, {}};

    // One byte more than a regular file is said to hold tells its end without a second, growing read.
    constexpr qsizetype step = 1 << 16;
    QByteArray bytes(regular ? status.st_size + 1 : step, Qt::Uninitialized);
    qsizetype filled = 0;
    for (;;) {
        if (filled == bytes.size()) {
            if (filled > limit)
                return Failure{FailureCode::TooLarge, name, {}};
            bytes.resize(std::min<qint64>(std::max(2 * filled, step), limit + 1));
        }
        const ssize_t count =
            ::read(descriptor, bytes.data() + filled, static_cast<std::size_t>(bytes.size() - filled));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return Failure{openingFailure(errno), name, qt_error_string(errno)};
        if (count == 0)
            break;
        filled += count;
    }
    if (filled > limit)
        return Failure{FailureCode::TooLarge, name, {}};
    bytes.truncate(filled);
    return bytes;
}

} // namespace lumora
