// SPDX-License-Identifier: MIT
#pragma once

#include "icons/today/TodaySources.h"
#include "tests/pictures/TestPictures.h"

#include <QImage>
#include <QPainter>

namespace lumora
{

/// Noise and shades that let nothing through.
inline QImage opaquePicture(int edge = 1024)
{
    return testPicture(edge, edge).convertToFormat(QImage::Format_RGBX8888).convertToFormat(QImage::Format_RGBA8888);
}

/// A disk of that diameter in the middle, in thousandths of the edge; transparent around it unless there is a ground.
inline QImage disk(int thousandths, QColor color = Qt::red, QColor ground = Qt::transparent, int edge = 1024)
{
    QImage picture(edge, edge, QImage::Format_RGBA8888_Premultiplied);
    picture.fill(ground);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    const double radius = edge * thousandths / 2000.0;
    painter.drawEllipse(QPointF(edge / 2.0, edge / 2.0), radius, radius);
    return picture;
}

/// A square drawing without a size of its own, as an SVG file.
inline const QByteArray squareDrawing =
    "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 10 10\">"
    "<path fill=\"#d33\" d=\"M0 0h10v10h-10z\"/><path fill=\"#fff\" d=\"M3 3h4v4h-4z\"/></svg>";

/// Sources of that icon alone.
inline TodaySources sourcesOf(const QImage &icon)
{
    TodaySources sources;
    sources.icon = Artwork(icon);
    return sources;
}

} // namespace lumora
