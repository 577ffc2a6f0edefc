// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>

#include <span>

namespace lumora
{

/// One picture of a Windows icon file.
struct IcoPicture
{
    QImage pixels;  ///< square, 1 to 256 pixels wide
    QByteArray png; ///< the same as a PNG file; where it is not empty, it is what the icon file holds
};

/// The Windows icon file of these pictures, in this order. A picture without a PNG file is stored as a 32-bit bitmap
/// with the one-bit mask of what is fully transparent below it, which every version of Windows reads.
QByteArray icoFile(std::span<const IcoPicture> pictures);

} // namespace lumora
