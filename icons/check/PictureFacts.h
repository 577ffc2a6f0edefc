// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>

namespace lumora
{

/// What a picture file contains, independent of its name.
struct PictureFacts
{
    bool exists = false;
    bool readable = false; ///< whole and in a known format; if false, the other members have no meaning
    qint64 fileBytes = 0;
    QByteArray format; ///< as `pictureFormat` names it
    QSize size;
    bool palette = false;
    bool deep = false; ///< 16 bits a channel
    bool interlaced = false;
    bool wideGamut = false;
    bool alphaChannel = false;
    /// The file's bytes, kept if the pixels may be needed: for pictures with an alpha channel, or on request.
    QByteArray bytes;

    /// The pixels, premultiplied RGBA, decoded at each call. Null if that fails.
    QImage pixels() const;
};

/// Reads a file's structure without decoding its pixels. Devices and files above the limit for pictures count as
/// unreadable.
PictureFacts pictureFacts(const QString &path);

} // namespace lumora
