// SPDX-License-Identifier: MIT
#include "PngRows.h"

#include "pictures/pixels/PixelFormat.h"

#include <algorithm>
#include <utility>

namespace lumora
{

ImageRows::ImageRows(QImage picture)
    : m_picture(picture.format() == QImage::Format_RGBA8888 ? std::move(picture) : premultiplied(std::move(picture)))
{
}

void ImageRows::readRow(int row, std::span<std::uint8_t> rgba) const
{
    std::copy_n(m_picture.constScanLine(row), rgba.size(), rgba.begin());
    if (m_picture.format() != QImage::Format_RGBA8888)
        straightenPixels(rgba.data(), m_picture.width());
}

} // namespace lumora
