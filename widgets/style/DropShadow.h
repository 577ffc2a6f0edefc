// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QImage>
#include <QPainterPath>

namespace lumora
{

/// The settings of a shadow; lengths are in points, the offset counts downwards.
struct DropShadow
{
    QColor color;
    qreal blur = 0;
    qreal offset = 0;

    bool operator==(const DropShadow &) const = default;
};

/// The soft shadow of a filled path, as large as the area (in points, y down). It is computed at one pixel per point,
/// since a blurred edge has no more detail; screens of other scales enlarge it.
QImage shadowOf(const QPainterPath &path, const QSize &area, const DropShadow &shadow);

} // namespace lumora
