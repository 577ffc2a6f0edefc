// SPDX-License-Identifier: MIT
#pragma once

#include <QPainterPath>
#include <QRectF>
#include <QString>

namespace lumora
{

class LabelFont;

/// What a placeholder of the size says: both lengths truncated to whole pixels ("1136 x 640").
QString labelText(QSizeF picture);

/// The label's font size in points, which are pixels here: a tenth of the width, whatever the height.
float labelPointSize(double pictureWidth);

/// Where a text of the measured size goes: centered, its origin snapped down to whole pixels. Counts y upwards, origin
/// at the lower left corner; the rectangle may reach beyond a picture that is lower than the text.
QRectF labelRectangle(QSizeF picture, QSizeF text);

/// The width and the line height of the picture's label in pixels.
QSizeF labelSize(QSizeF picture, const LabelFont &font);

/// The label's shape in the picture's pixels, y counted downwards, not yet clipped to the picture.
QPainterPath labelOutline(QSizeF picture, const LabelFont &font);

} // namespace lumora
