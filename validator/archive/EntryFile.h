// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/FileDescriptor.h"
#include "foundation/Result.h"

#include <QDateTime>

#include <cstdint>
#include <span>

namespace lumora
{

/// One file that is being extracted. Blocks of zeros become holes, so that an entry of endless zeros takes no disk
/// space.
class EntryFile
{
public:
    explicit EntryFile(FileDescriptor file) : m_file(std::move(file)) {}

    /// Appends the bytes. Fails with `CannotWrite` and the system's reason; the caller adds the subject.
    Outcome write(std::span<const char> bytes);
    /// Sets the file's full length if it ends in a hole.
    Outcome finish();
    /// Sets the modification date; false when the date is invalid or the system refuses.
    bool setModified(const QDateTime &date);

private:
    FileDescriptor m_file;
    std::int64_t m_length = 0;
    bool m_endsInHole = false;
};

} // namespace lumora
