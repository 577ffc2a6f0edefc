// SPDX-License-Identifier: MIT
#include "ArchiveInput.h"

#include "foundation/FileDescriptor.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <span>

#include <fcntl.h>
#include <minizip/unzip.h>
#include <sys/stat.h>

namespace lumora
{

namespace
{

/// An open archive, as a file with a position.
class ArchiveInput
{
public:
    explicit ArchiveInput(FileDescriptor file) : m_file(std::move(file))
    {
        struct stat status = {};
        m_size = ::fstat(m_file.number(), &status) == 0 ? static_cast<std::uint64_t>(status.st_size) : 0;
    }

    std::size_t read(char *buffer, std::size_t size)
    {
        std::size_t done = 0;
        while (done < size) {
            const std::span<char> rest(buffer + done, size - done);
            std::size_t count = takeBuffered(rest);
            // Long data of an entry needs no buffer.
            if (count == 0 && rest.size() >= bufferSize)
                count = readInto(rest);
            else if (count == 0)
                count = fill() ? takeBuffered(rest) : 0;
            if (count == 0)
                break;
            done += count;
            m_at += count;
        }
        return done;
    }

    std::uint64_t position() const { return m_at; }
    bool failed() const { return m_failed; }

    bool seek(std::uint64_t offset, int origin)
    {
        const std::uint64_t start = origin == SEEK_CUR ? m_at : origin == SEEK_END ? m_size : 0;
        // An offset to the left comes as a number that overflows.
        const auto target = static_cast<std::int64_t>(start + offset);
        if (target < 0)
            return false;
        m_at = static_cast<std::uint64_t>(target);
        return true;
    }

private:
    static constexpr std::size_t bufferSize = 4096;

    struct Buffer
    {
        std::array<char, bufferSize> bytes;
        std::uint64_t begin = 0;
        std::size_t count = 0;
    };

    /// Copies what the buffers have from the position on.
    std::size_t takeBuffered(std::span<char> target)
    {
        for (std::size_t i = 0; i < m_buffers.size(); ++i) {
            const Buffer &buffer = m_buffers[i];
            if (m_at < buffer.begin || m_at - buffer.begin >= buffer.count)
                continue;
            const std::size_t offset = m_at - buffer.begin;
            const std::size_t count = std::min(target.size(), buffer.count - offset);
            std::memcpy(target.data(), buffer.bytes.data() + offset, count);
            m_latest = i;
            return count;
        }
        return 0;
    }

    std::size_t readInto(std::span<char> target)
    {
        const auto count = readAt(m_file, m_at, target);
        m_failed = m_failed || !count;
        return count ? count.value() : 0;
    }

    /// Fills the buffer that was not used last. False at the end.
    bool fill()
    {
        m_latest = (m_latest + 1) % m_buffers.size();
        Buffer &buffer = m_buffers[m_latest];
        buffer.begin = m_at;
        buffer.count = readInto(buffer.bytes);
        return buffer.count > 0;
    }

    FileDescriptor m_file;
    std::uint64_t m_size = 0;
    std::uint64_t m_at = 0;
    std::array<Buffer, 2> m_buffers;
    std::size_t m_latest = 0;
    bool m_failed = false;
};

ArchiveInput &inputOf(void *stream)
{
    return *static_cast<ArchiveInput *>(stream);
}

void *openInput(void *, const void *path, int)
{
    FileDescriptor file(::open(static_cast<const char *>(path), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    return file.valid() ? new ArchiveInput(std::move(file)) : nullptr;
}

uLong readInput(void *, void *stream, void *buffer, uLong size)
{
    return inputOf(stream).read(static_cast<char *>(buffer), size);
}

ZPOS64_T positionOfInput(void *, void *stream)
{
    return inputOf(stream).position();
}

long seekInput(void *, void *stream, ZPOS64_T offset, int origin)
{
    return inputOf(stream).seek(offset, origin) ? 0 : -1;
}

int closeInput(void *, void *stream)
{
    delete static_cast<ArchiveInput *>(stream);
    return 0;
}

int hasInputFailed(void *, void *stream)
{
    return inputOf(stream).failed() ? 1 : 0;
}

} // namespace

void *openWithBuffers(const QString &path)
{
    zlib_filefunc64_def functions = {};
    functions.zopen64_file = &openInput;
    functions.zread_file = &readInput;
    functions.ztell64_file = &positionOfInput;
    functions.zseek64_file = &seekInput;
    functions.zclose_file = &closeInput;
    functions.zerror_file = &hasInputFailed;
    return ::unzOpen2_64(path.toUtf8().constData(), &functions);
}

} // namespace lumora
