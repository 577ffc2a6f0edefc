// SPDX-License-Identifier: MIT
#pragma once

#include "ZipEntryReader.h"

#include <QByteArray>
#include <QFile>

#include <memory>

struct unz_file_info_s;

namespace lumora
{

/// The data of the entry at which an open archive stands: read by minizip, or around it where it cannot.
class CurrentEntry
{
public:
    /// `archive` is the open minizip handle of the archive at `path`, `password` empty for none. Both stay the
    /// caller's.
    CurrentEntry(void *archive, const QString &path, const QByteArray &password);

    /// False when the entry cannot be opened: damage, an unknown method, a wrong password.
    bool open();
    /// To be called once the entry is open and its information known: makes sure that an entry of more than 4 GB is
    /// read to its end, and that one of a method that minizip hands out undecoded counts as unreadable.
    void noteSizes(const unz_file_info_s &info);
    /// True when minizip reads the entry as any other: without ways round it, and not as unreadable.
    bool isOrdinary() const { return !m_reader && !m_unreadable; }
    /// Bytes of the content, as the archive states them.
    std::uint64_t size(const unz_file_info_s &info) const;
    /// Up to `size` bytes: their number, 0 at the end, negative on an error.
    int read(char *buffer, unsigned size);
    /// False when what was read does not have the stored checksum.
    bool close();

private:
    /// Opens the entry's data without minizip.
    bool openAround();

    void *m_archive;
    QFile m_file;
    QByteArray m_password;
    std::unique_ptr<ZipEntryReader> m_reader;
    bool m_unreadable = false;
};

} // namespace lumora
