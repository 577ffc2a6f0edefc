// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QRectF>
#include <QSizeF>

namespace lumora
{

/// Lays pictures out like a contact sheet: in their order, in rows from the top, all at the one largest scale (never
/// above 1) at which they fit into the area with `gap` between them; rows centered, the whole in the middle. Empty
/// where the area is.
QList<QRectF> miniatureRectangles(const QList<QSize> &pictures, const QRectF &area, double gap);

} // namespace lumora
