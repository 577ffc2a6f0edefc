// SPDX-License-Identifier: MIT
#pragma once

#include "ExtractionFolder.h"

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

    /// Appends the bytes; false when the system could not write all of them (errno says why).
    bool write(std::span<const char> bytes);
    /// Gives the file its full length where it ends in a hole.
    bool finish();
    /// Sets the modification date; false when the date is invalid or the system refuses.
    bool setModified(const QDateTime &date);

private:
    FileDescriptor m_file;
    std::int64_t m_length = 0;
    bool m_endsInHole = false;
};

} // namespace lumora
