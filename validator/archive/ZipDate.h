// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>

namespace lumora
{

/// A date as stored in archives: local time without a zone. All zero if there is none.
struct ZipDate
{
    int year = 0;
    int month = 0; ///< from 0
    int day = 0;   ///< from 1
    int hour = 0;
    int minute = 0;
    int second = 0;

    bool operator==(const ZipDate &) const = default;
};

/// Invalid when the fields are no date.
QDateTime dateOfEntry(const ZipDate &stored);

/// The date split in local time; all zero for an invalid one.
ZipDate entryDate(const QDateTime &modified);

} // namespace lumora
