// SPDX-License-Identifier: MIT
#pragma once

#include "ZipEntryReader.h"

#include <QByteArray>
#include <QFile>

#include <memory>
#include <optional>

#include <minizip/unzip.h>

namespace lumora
{

/// The data of the entry at which an open archive stands: read by minizip, or around it where it cannot.
class CurrentEntry
{
public:
    /// `archive` is the open minizip handle of the archive at `path`, `password` empty for none. Both stay the
    /// caller's.
    CurrentEntry(unzFile archive, const QString &path, const QByteArray &password);

    /// False when the entry cannot be opened: damage, an unknown method, a wrong password.
    bool open();
    /// To be called once the entry is open and its information known: makes sure that an entry of more than 4 GB is
    /// read to its end, and that one of a method that minizip hands out undecoded counts as unreadable.
    void noteSizes(const unz_file_info &info);
    /// Up to `size` bytes: their number, 0 at the end, negative on an error.
    int read(char *buffer, unsigned size);
    /// False when what was read does not have the stored checksum.
    bool close();

private:
    /// Opens the entry's data without minizip.
    bool openAround();
    /// The entry's information and its extra fields; nothing when they cannot be read.
    std::optional<QByteArray> extraFields(unz_file_info64 &info) const;

    unzFile m_archive;
    QFile m_file;
    QByteArray m_password;
    std::unique_ptr<ZipEntryReader> m_reader;
    bool m_unreadable = false;
};

} // namespace lumora
