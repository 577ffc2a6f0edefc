// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>

#include <minizip/unzip.h>
#include <minizip/zip.h>

namespace lumora
{

/// The local date and time stored with an entry, whose month counts from 0. Invalid when the fields are no date.
QDateTime dateOfEntry(const tm_unz &stored);

/// The record for a new entry: the file's date split in local time with the month counted from 0, everything else
/// (attributes, packed date) zero. An invalid date leaves the date fields zero as well.
zip_fileinfo entryRecord(const QDateTime &modified);

} // namespace lumora
