// SPDX-License-Identifier: MIT
#pragma once

#include "tests/doubles/FilesOnDisk.h"
#include "tests/icons/today/TodayPictures.h"

#include <QColorSpace>
#include <QDir>
#include <QFileInfo>

#include <filesystem>

namespace lumora
{

inline QByteArray jpegOf(int edge)
{
    return pictureFile(opaquePicture(edge), "jpeg");
}

inline QByteArray deepPng(int edge)
{
    return pictureFile(opaquePicture(edge).convertToFormat(QImage::Format_RGBX64));
}

inline QByteArray palettePng(int edge)
{
    return pictureFile(
        opaquePicture(edge).convertToFormat(QImage::Format_RGB888).convertToFormat(QImage::Format_Indexed8));
}

inline QByteArray wideGamutPng(int edge)
{
    QImage picture = opaquePicture(edge).convertToFormat(QImage::Format_RGB888);
    picture.setColorSpace(QColorSpace(QColorSpace::DisplayP3));
    return pictureFile(picture);
}

/// Puts a file in the place of another, which stays as it is under its other names.
inline bool replaceFile(const QString &path, const QByteArray &content)
{
    return (!QFile::exists(path) || QFile::remove(path)) && putFile(path, content);
}

/// The same files, without their bytes on the disk again.
inline bool linkTree(const QString &from, const QString &to)
{
    for (const QString &file : filesBelowFolder(from)) {
        const QString path = to + u'/' + file;
        std::error_code failure;
        if (QDir().mkpath(QFileInfo(path).path()))
            std::filesystem::create_hard_link(QString(from + u'/' + file).toStdString(), path.toStdString(), failure);
        if (!QFile::exists(path))
            return false;
    }
    return true;
}

} // namespace lumora
