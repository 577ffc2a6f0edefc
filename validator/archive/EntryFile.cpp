// SPDX-License-Identifier: MIT
#include "EntryFile.h"

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lumora
{

namespace
{

/// The smallest block worth leaving out: that of common file systems.
constexpr std::size_t holeSize = 4096;

bool isHole(std::span<const char> bytes)
{
    return bytes.size() == holeSize && bytes[0] == 0 && std::memcmp(bytes.data(), bytes.data() + 1, holeSize - 1) == 0;
}

} // namespace

bool EntryFile::write(std::span<const char> bytes)
{
    if (isHole(bytes)) {
        m_length += static_cast<std::int64_t>(bytes.size());
        m_endsInHole = true;
        return true;
    }
    if (m_endsInHole) {
        if (::lseek(m_file.number(), m_length, SEEK_SET) < 0)
            return false;
        m_endsInHole = false;
    }
    while (!bytes.empty()) {
        const ssize_t written = ::write(m_file.number(), bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        bytes = bytes.subspan(static_cast<std::size_t>(written));
        m_length += written;
    }
    return true;
}

bool EntryFile::finish()
{
    return !m_endsInHole || ::ftruncate(m_file.number(), m_length) == 0;
}

bool EntryFile::setModified(const QDateTime &date)
{
    if (!date.isValid())
        return false;
    timespec times[2] = {};
    times[0].tv_nsec = UTIME_OMIT;
    times[1].tv_sec = static_cast<time_t>(date.toSecsSinceEpoch());
    return ::futimens(m_file.number(), times) == 0;
}

} // namespace lumora
