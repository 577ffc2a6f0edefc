// SPDX-License-Identifier: MIT
#include "EntryFile.h"

#include <cstring>

#include <sys/stat.h>
#include <unistd.h>

namespace lumora
{

namespace
{

/// The smallest hole: a block of common file systems.
constexpr std::size_t holeSize = 4096;

bool isHole(std::span<const char> bytes)
{
    return bytes.size() == holeSize && bytes[0] == 0 && std::memcmp(bytes.data(), bytes.data() + 1, holeSize - 1) == 0;
}

} // namespace

Outcome EntryFile::write(std::span<const char> bytes)
{
    const auto length = static_cast<std::int64_t>(bytes.size());
    if (isHole(bytes)) {
        m_length += length;
        m_endsInHole = true;
        return Done{};
    }
    if (m_endsInHole && ::lseek(m_file.number(), m_length, SEEK_SET) < 0)
        return systemFailure(FailureCode::CannotWrite, {});
    m_endsInHole = false;
    m_length += length;
    return writeAll(m_file, bytes);
}

Outcome EntryFile::finish()
{
    if (m_endsInHole && ::ftruncate(m_file.number(), m_length) != 0)
        return systemFailure(FailureCode::CannotWrite, {});
    return Done{};
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
