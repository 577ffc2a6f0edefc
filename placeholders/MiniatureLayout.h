// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QRectF>
#include <QSizeF>

namespace lumora
{

/// Arranges pictures like a contact sheet: in their order, in centered rows from the top, with `gap` between them, and
/// the whole in the middle of the area. All have the same scale, the largest up to 1 at which they fit. Empty if the
/// area is empty.
QList<QRectF> miniatureRectangles(const QList<QSize> &pictures, const QRectF &area, double gap);

} // namespace lumora
