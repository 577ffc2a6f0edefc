// SPDX-License-Identifier: MIT
#include "PngRows.h"

#include "pictures/pixels/PictureMemory.h"
#include "pictures/pixels/PixelFormat.h"

#include <algorithm>
#include <utility>

namespace lumora
{

namespace
{

/// An encoder reads each row several times, so that straightening them once saves more than the copy costs.
QImage straight(QImage picture)
{
    if (picture.format() == QImage::Format_RGBA8888)
        return picture;
    picture = premultiplied(std::move(picture));
    takeOwnPixels(picture);
    for (int row = 0; row < picture.height(); ++row)
        straightenPixels(picture.scanLine(row), picture.width());
    picture.reinterpretAsFormat(QImage::Format_RGBA8888);
    return picture;
}

} // namespace

ImageRows::ImageRows(QImage picture) : m_picture(straight(std::move(picture))) {}

void ImageRows::readRow(int row, std::span<std::uint8_t> rgba) const
{
    std::copy_n(m_picture.constScanLine(row), rgba.size(), rgba.begin());
}

} // namespace lumora
