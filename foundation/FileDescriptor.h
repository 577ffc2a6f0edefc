// SPDX-License-Identifier: MIT
#pragma once

#include "Result.h"

#include <QString>

#include <cstdint>
#include <span>
#include <utility>

namespace lumora
{

/// An open file descriptor that closes itself.
class FileDescriptor
{
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int number) : m_number(number) {}
    FileDescriptor(FileDescriptor &&other) noexcept : m_number(other.release()) {}
    FileDescriptor &operator=(FileDescriptor &&other) noexcept;
    ~FileDescriptor();

    bool valid() const { return m_number >= 0; }
    int number() const { return m_number; }
    /// Hands the descriptor to the caller, who has to close it.
    int release() { return std::exchange(m_number, -1); }
    /// Closes the descriptor now. `CannotWrite` when the system reports that earlier writes were lost.
    Outcome close();

private:
    int m_number = -1;
};

/// The failure of a system call that has just failed: `errno` gives the detail.
Failure systemFailure(FailureCode code, const QString &subject);

/// Writes all bytes, with as many calls as needed. Fails with `CannotWrite` when the system accepts no more; the caller
/// adds the subject.
Outcome writeAll(const FileDescriptor &file, std::span<const char> bytes);

/// Reads from the current position until the buffer is full or the file ends. Returns the number of bytes read.
Result<std::size_t> readAt(const FileDescriptor &file, std::uint64_t position, std::span<char> buffer);

} // namespace lumora
