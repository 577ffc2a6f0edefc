// SPDX-License-Identifier: MIT
#include "PlaceholderLabel.h"

#include "LabelFont.h"

#include <QTransform>

#include <cmath>

namespace lumora
{

QString labelText(QSizeF picture)
{
    return QStringLiteral("%1 x %2").arg(static_cast<int>(picture.width())).arg(static_cast<int>(picture.height()));
}

float labelPointSize(double pictureWidth)
{
    return static_cast<float>(pictureWidth / 10.0);
}

QRectF labelRectangle(QSizeF picture, QSizeF text)
{
    const double x = std::floor(picture.width() * 0.5 - text.width() * 0.5);
    const double y = std::floor(picture.height() * 0.5 - text.height() * 0.5);
    return {QPointF(x, y), text};
}

QSizeF labelSize(QSizeF picture, const LabelFont &font)
{
    const double points = labelPointSize(picture.width());
    return {font.width(labelText(picture)) * points, (font.ascent() + font.descent()) * points};
}

QPainterPath labelOutline(QSizeF picture, const LabelFont &font)
{
    const double points = labelPointSize(picture.width());
    const QRectF rectangle = labelRectangle(picture, labelSize(picture, font));
    const double baseline = picture.height() - (rectangle.y() + font.descent() * points);
    return QTransform::fromTranslate(rectangle.x(), baseline)
        .scale(points, points)
        .map(font.outline(labelText(picture)));
}

} // namespace lumora
