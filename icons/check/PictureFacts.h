// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>

namespace lumora
{

/// What a picture file is, whatever it is called.
struct PictureFacts
{
    bool exists = false;
    bool readable = false; ///< whole and in a known format; the rest says nothing otherwise
    qint64 fileBytes = 0;
    QByteArray format; ///< as `pictureFormat` names it
    QSize size;
    bool palette = false;
    bool deep = false; ///< 16 bits a channel
    bool interlaced = false;
    bool wideGamut = false;
    bool alphaChannel = false;
    /// Kept where the pixels may have to be asked, which is when the picture has an alpha channel or is asked for them.
    QByteArray bytes;

    /// The pixels, premultiplied RGBA; decoded at each call. Null where they cannot be.
    QImage pixels() const;
};

/// Reads a file's structure without decoding its pixels. Devices and what is longer than a picture may be count as
/// unreadable.
PictureFacts pictureFacts(const QString &path);

} // namespace lumora
