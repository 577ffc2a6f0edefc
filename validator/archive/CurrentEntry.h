// SPDX-License-Identifier: MIT
#pragma once

#include "ZipEntryReader.h"

#include <QByteArray>
#include <QFile>

#include <memory>

struct unz_file_info_s;

namespace lumora
{

/// The data of an open archive's current entry: read by minizip, or without it if it cannot.
class CurrentEntry
{
public:
    /// `archive` is the open minizip handle of the archive at `path`; an empty `password` means none. The caller keeps
    /// the handle.
    CurrentEntry(void *archive, const QString &path, const QByteArray &password);

    /// False when the entry cannot be opened: damage, an unknown method, a wrong password.
    bool open();
    /// Call this once the entry is open and its information known. It makes sure that an entry of more than 4 GB is
    /// read to its end, and that an entry of a method that minizip returns undecoded counts as unreadable.
    void noteSizes(const unz_file_info_s &info);
    /// True when minizip reads the entry itself, and the entry is readable.
    bool isOrdinary() const { return !m_reader && !m_unreadable; }
    /// The size of the content in bytes, as the archive states it.
    std::uint64_t size(const unz_file_info_s &info) const;
    /// Reads up to `size` bytes. Returns their number, 0 at the end, a negative number on an error.
    int read(char *buffer, unsigned size);
    /// False when the read bytes have another checksum than the archive states, or are fewer than it states.
    bool close();

private:
    /// Opens the entry's data without minizip.
    bool openAround();

    void *m_archive;
    QFile m_file;
    QByteArray m_password;
    std::unique_ptr<ZipEntryReader> m_reader;
    bool m_unreadable = false;
    std::uint64_t m_left = 0; ///< bytes that minizip has not delivered
};

} // namespace lumora
