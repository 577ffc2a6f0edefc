// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/FileDescriptor.h"
#include "foundation/Result.h"

#include <QDateTime>

#include <cstdint>
#include <span>

namespace lumora
{

/// One file being extracted. Blocks of zeros become holes, so that an entry of endless zeros costs no disk space.
class EntryFile
{
public:
    explicit EntryFile(FileDescriptor file) : m_file(std::move(file)) {}

    /// Appends the bytes. `CannotWrite` with the system's reason; a failure's subject is left to the caller.
    Outcome write(std::span<const char> bytes);
    /// Gives the file its full length where it ends in a hole.
    Outcome finish();
    /// Sets the modification date; false when the date is invalid or the system refuses.
    bool setModified(const QDateTime &date);

private:
    FileDescriptor m_file;
    std::int64_t m_length = 0;
    bool m_endsInHole = false;
};

} // namespace lumora
