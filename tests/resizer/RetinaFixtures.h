// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QImage>
#include <QString>

namespace lumora
{

/// Writes a picture of one color as a PNG file; false when it could not.
inline bool putFlatPng(const QString &path, QSize size, const QColor &color)
{
    QImage picture(size, QImage::Format_ARGB32);
    picture.fill(color);
    return picture.save(path, "png");
}

} // namespace lumora
