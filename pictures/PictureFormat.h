// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace lumora
{

/// The format of the content, known by its first bytes, as Qt's decoders name it ("png", "jpeg", "tiff", "webp", "bmp",
/// "gif", "icns"); empty for formats that are not accepted.
QByteArray pictureFormat(const QByteArray &bytes);

/// False when a JPEG, BMP or PNG file is cut off. The decoders of JPEG and BMP would fill the rest with gray or black
/// and report success; that of PNG would first allocate all the memory that the last chunk claims. True for every other
/// format, whose decoders notice.
bool isWhole(const QByteArray &bytes);

} // namespace lumora
