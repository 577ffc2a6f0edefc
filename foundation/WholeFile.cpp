// SPDX-License-Identifier: MIT
#include "WholeFile.h"

#include "FileDescriptor.h"
#include "MemoryLimit.h"
#include "PendingFile.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

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

/// Makes writes block until the other side has room.
bool waitsForReaders(const FileDescriptor &file)
{
    const int flags = ::fcntl(file.number(), F_GETFL);
    return flags >= 0 && ::fcntl(file.number(), F_SETFL, flags & ~O_NONBLOCK) == 0;
}

/// Writes in place: to a device, to a pipe, or to a writable file in a folder that is not writable.
Outcome writeInPlace(const QByteArray &name, const QByteArray &bytes)
{
    // O_NONBLOCK, since opening a pipe without a reader would block forever. The writes themselves then wait for the
    // reader.
    FileDescriptor file(::open(name.constData(), O_WRONLY | O_TRUNC | O_NONBLOCK | O_CLOEXEC));
    if (!file.valid() || !waitsForReaders(file))
        return systemFailure(FailureCode::CannotWrite, {});
    const Outcome written = writeAll(file, bytes);
    return written ? file.close() : written;
}

Outcome writePending(const QByteArray &name, const QByteArray &bytes)
{
    auto file = PendingFile::begin(name);
    if (!file)
        return file.failure();
    const Outcome written = file.value().write(bytes);
    return written ? file.value().publish() : written;
}

/// Reads up to the end. `expected` is the file's size, or -1 if it is not known.
Result<QByteArray> readToEnd(int descriptor, qint64 expected, const QString &name, qint64 limit)
{
    // One byte more than the file's size, so that one read reaches the end without growing the buffer.
    constexpr qsizetype step = 1 << 16;
    QByteArray bytes(expected < 0 ? step : expected + 1, Qt::Uninitialized);
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

} // namespace

Outcome writeWholeFile(const QString &path, const QByteArray &bytes)
{
    // A link stays a link; the file that it points to is written.
    const QFileInfo info(path);
    const QByteArray name = QFile::encodeName(info.exists() ? info.canonicalFilePath() : path);
    const bool inPlace = info.exists() && !info.isFile();
    Outcome written = inPlace ? writeInPlace(name, bytes) : writePending(name, bytes);
    if (!written && written.failure().code == FailureCode::NoPermission && info.exists())
        written = writeInPlace(name, bytes);
    if (written)
        return written;
    return Failure{FailureCode::CannotWrite, path, written.failure().detail};
}

Result<QByteArray> readWholeFile(const QString &path, qint64 limit)
{
    // O_NONBLOCK, since opening a pipe without a writer would block forever.
    const FileDescriptor file(::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (!file.valid())
        return Failure{openingFailure(errno), path, {}};
    struct stat status = {};
    if (::fstat(file.number(), &status) == 0 && !S_ISREG(status.st_mode) && !S_ISDIR(status.st_mode))
        return Failure{FailureCode::NotReadable, path, "DETAIL_NO_REGULAR_FILE"};
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
    return withinMemory(name, [&] { return readToEnd(descriptor, regular ? status.st_size : -1, name, limit); });
}

} // namespace lumora
