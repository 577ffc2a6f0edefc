// SPDX-License-Identifier: MIT
#include "ZipDate.h"

namespace lumora
{

QDateTime dateOfEntry(const tm_unz &stored)
{
    const QDate date(static_cast<int>(stored.tm_year), static_cast<int>(stored.tm_mon + 1),
                     static_cast<int>(stored.tm_mday));
    const QTime time(static_cast<int>(stored.tm_hour), static_cast<int>(stored.tm_min),
                     static_cast<int>(stored.tm_sec));
    if (!date.isValid() || !time.isValid())
        return {};
    return QDateTime(date, time);
}

zip_fileinfo entryRecord(const QDateTime &modified)
{
    zip_fileinfo record = {};
    if (!modified.isValid())
        return record;
    const QDateTime local = modified.toLocalTime();
    record.tmz_date.tm_sec = static_cast<uInt>(local.time().second());
    record.tmz_date.tm_min = static_cast<uInt>(local.time().minute());
    record.tmz_date.tm_hour = static_cast<uInt>(local.time().hour());
    record.tmz_date.tm_mday = static_cast<uInt>(local.date().day());
    record.tmz_date.tm_mon = static_cast<uInt>(local.date().month() - 1);
    record.tmz_date.tm_year = static_cast<uInt>(local.date().year());
    return record;
}

} // namespace lumora
