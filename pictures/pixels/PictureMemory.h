// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

namespace lumora
{

/// A picture with undefined pixels. Throws `std::bad_alloc` if memory runs out, where Qt returns an empty picture.
QImage newPicture(QSize size, QImage::Format format);

/// The picture itself. Throws `std::bad_alloc` if it is empty, as it is after a conversion that found no memory.
QImage withPixels(QImage picture);

/// Gives the picture pixels that no other one shares, for writing to its rows. Throws `std::bad_alloc` if memory runs
/// out. An empty picture stays empty.
void takeOwnPixels(QImage &picture);

} // namespace lumora
