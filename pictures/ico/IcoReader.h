// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QSize>

#include <optional>
#include <vector>

namespace lumora
{

/// What a Windows icon file says of one of its pictures.
struct IcoEntry
{
    QSize size;       ///< pixels, as the picture's own header says
    bool png = false; ///< a PNG file; else a bitmap
    int bits = 0;     ///< a pixel, of a bitmap
};

/// The pictures of a Windows icon file, whose own headers are read, too. Nothing where the file is damaged: an entry
/// leaves the file, holds no picture, or holds one of another size than the directory says.
std::optional<std::vector<IcoEntry>> readIcoEntries(const QByteArray &file);

} // namespace lumora
