// SPDX-License-Identifier: MIT
#pragma once

#include <QPainterPath>
#include <QRectF>
#include <QString>

namespace lumora
{

class LabelFont;

/// The label of a placeholder of the size, both lengths truncated to whole pixels: "1136 x 640".
QString labelText(QSizeF picture);

/// The label's font size in points, here the same as pixels: a tenth of the width, whatever the height.
float labelPointSize(double pictureWidth);

/// The rectangle of a text of the measured size: centered, its origin rounded down to whole pixels. Y counts upwards
/// from the lower left corner. The rectangle may reach beyond a picture that is lower than the text.
QRectF labelRectangle(QSizeF picture, QSizeF text);

/// The width and the line height of the picture's label in pixels.
QSizeF labelSize(QSizeF picture, const LabelFont &font);

/// The label's shape in the picture's pixels, y counted downwards, not yet clipped to the picture.
QPainterPath labelOutline(QSizeF picture, const LabelFont &font);

} // namespace lumora
