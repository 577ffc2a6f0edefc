// SPDX-License-Identifier: MIT
#include "PngRows.h"

#include <algorithm>
#include <utility>

namespace lumora
{

ImageRows::ImageRows(QImage picture) : m_picture(std::move(picture)) {}

void ImageRows::readRow(int row, std::span<std::uint8_t> rgba) const
{
    std::copy_n(m_picture.constScanLine(row), rgba.size(), rgba.begin());
}

} // namespace lumora
