// SPDX-License-Identifier: MIT
#include "ZipDate.h"

namespace lumora
{

QDateTime dateOfEntry(const ZipDate &stored)
{
    const QDate date(stored.year, stored.month + 1, stored.day);
    const QTime time(stored.hour, stored.minute, stored.second);
    if (!date.isValid() || !time.isValid())
        return {};
    return QDateTime(date, time);
}

ZipDate entryDate(const QDateTime &modified)
{
    if (!modified.isValid())
        return {};
    const QDate date = modified.toLocalTime().date();
    const QTime time = modified.toLocalTime().time();
    return {date.year(), date.month() - 1, date.day(), time.hour(), time.minute(), time.second()};
}

} // namespace lumora
