// SPDX-License-Identifier: MIT
#include "ColorPainting.h"

#include "PickerMetrics.h"
#include "widgets/style/Palette.h"

#include <QPainter>
#include <QPainterPath>

namespace lumora
{

namespace
{

constexpr qreal outlineWidth = 1;
constexpr qreal markerWidth = 2;
constexpr qreal focusWidth = 2;
constexpr qreal focusGap = 2;

} // namespace

void paintTransparencyPattern(QPainter &painter, const QRectF &rect, qreal corner)
{
    painter.save();
    QPainterPath clip;
    clip.addRoundedRect(rect, corner, corner);
    painter.setClipPath(clip, Qt::IntersectClip);
    painter.fillRect(rect, palette::transparencyLight);
    constexpr int square = metrics::transparencySquare;
    for (int row = 0; row * square < rect.height(); ++row) {
        for (int column = row % 2; column * square < rect.width(); column += 2)
            painter.fillRect(QRectF(rect.x() + column * square, rect.y() + row * square, square, square),
                             palette::transparencyDark);
    }
    painter.restore();
}

void paintSwatch(QPainter &painter, const QRectF &rect, const RgbaColor &color, qreal corner)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    if (color.alpha < 1.0F)
        paintTransparencyPattern(painter, rect, corner);
    painter.setPen(Qt::NoPen);
    painter.setBrush(platformColor(color));
    painter.drawRoundedRect(rect, corner, corner);
    painter.setPen(QPen(palette::swatchOutline, outlineWidth));
    painter.setBrush(Qt::NoBrush);
    constexpr qreal half = outlineWidth / 2;
    painter.drawRoundedRect(rect.adjusted(half, half, -half, -half), corner - half, corner - half);
    painter.restore();
}

void paintMarker(QPainter &painter, const QRectF &rect)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    constexpr qreal inset = markerWidth / 2 + outlineWidth;
    const QRectF ring = rect.adjusted(inset, inset, -inset, -inset);
    painter.setPen(QPen(palette::markerEdge, markerWidth + 2 * outlineWidth));
    painter.drawEllipse(ring);
    painter.setPen(QPen(palette::marker, markerWidth));
    painter.drawEllipse(ring);
    painter.restore();
}

void paintFocusRing(QPainter &painter, const QRectF &rect, qreal corner)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(palette::color, focusWidth));
    painter.drawRoundedRect(rect.adjusted(-focusGap, -focusGap, focusGap, focusGap), corner + focusGap,
                            corner + focusGap);
    painter.restore();
}

} // namespace lumora
