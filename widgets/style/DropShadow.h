// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QImage>
#include <QPainterPath>

namespace lumora
{

/// How a shadow falls; lengths in points, the offset downwards.
struct DropShadow
{
    QColor color;
    qreal blur = 0;
    qreal offset = 0;

    bool operator==(const DropShadow &) const = default;
};

/// The soft shadow of a filled path, as large as the area (in points, y down). It is computed at one pixel a point: a
/// blurred edge holds no more detail, and a screen of any scale draws it enlarged.
QImage shadowOf(const QPainterPath &path, const QSize &area, const DropShadow &shadow);

} // namespace lumora
