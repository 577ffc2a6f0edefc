// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace lumora
{

/// The name by which Qt's decoders know the format that the content begins as ("png", "jpeg", "tiff", "webp", "bmp",
/// "gif", "icns"); empty where it is none that pictures are accepted in.
QByteArray pictureFormat(const QByteArray &bytes);

/// False when a JPEG or BMP file breaks off before its end, which their decoders would fill with gray or black and call
/// a success, and when a PNG file does, whose decoder would first take all the memory that its last chunk claims; true
/// for every other format, whose decoders notice.
bool isWhole(const QByteArray &bytes);

} // namespace lumora
