// SPDX-License-Identifier: MIT
#include "FileDescriptor.h"

#include <cerrno>

#include <unistd.h>

namespace lumora
{

FileDescriptor &FileDescriptor::operator=(FileDescriptor &&other) noexcept
{
    if (this != &other) {
        if (valid())
            ::close(m_number);
        m_number = other.release();
    }
    return *this;
}

FileDescriptor::~FileDescriptor()
{
    if (valid())
        ::close(m_number);
}

Outcome FileDescriptor::close()
{
    const int number = release();
    if (number >= 0 && ::close(number) != 0)
        return systemFailure(FailureCode::CannotWrite, {});
    return Done{};
}

Failure systemFailure(FailureCode code, const QString &subject)
{
    return {code, subject, qt_error_string(errno)};
}

Outcome writeAll(const FileDescriptor &file, std::span<const char> bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = ::write(file.number(), bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return systemFailure(FailureCode::CannotWrite, {});
        bytes = bytes.subspan(static_cast<std::size_t>(written));
    }
    return Done{};
}

Result<std::size_t> readAt(const FileDescriptor &file, std::uint64_t position, std::span<char> buffer)
{
    std::size_t filled = 0;
    while (filled < buffer.size()) {
        const ssize_t count = ::pread(file.number(), buffer.data() + filled, buffer.size() - filled,
                                      static_cast<off_t>(position + filled));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return systemFailure(FailureCode::NotReadable, {});
        if (count == 0)
            break;
        filled += static_cast<std::size_t>(count);
    }
    return filled;
}

} // namespace lumora
