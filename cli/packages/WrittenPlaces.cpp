// SPDX-License-Identifier: MIT
#include "WrittenPlaces.h"

#include <QDir>
#include <QFileInfo>

namespace lumora
{

namespace
{

/// One path for all names of a file, whether it exists or not.
QString placeOf(const QString &file)
{
    const QFileInfo info(file);
    const QString place = info.canonicalFilePath();
    return place.isEmpty() ? QDir(QFileInfo(info.absolutePath()).canonicalFilePath()).filePath(info.fileName()) : place;
}

} // namespace

QString fileInPlaceOf(const QStringList &read, const QStringList &written)
{
    QStringList places;
    for (const QString &file : read)
        places += placeOf(file);
    for (const QString &file : written) {
        if (places.contains(placeOf(file)))
            return file;
    }
    return {};
}

QString fileNamedTwice(const QStringList &files)
{
    QStringList places;
    for (const QString &file : files) {
        if (places.contains(placeOf(file)))
            return file;
        places += placeOf(file);
    }
    return {};
}

} // namespace lumora
