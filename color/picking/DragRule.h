// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>

#include <cmath>

namespace lumora
{

/// A popover that is dragged this many points from its place is detached; released before that, it returns.
inline constexpr qreal tearOffDistance = 50;

/// The distance between two places of a window's origin.
inline qreal dragDistance(const QPointF &originalOrigin, const QPointF &origin)
{
    return std::hypot(origin.x() - originalOrigin.x(), origin.y() - originalOrigin.y());
}

/// Whether a popover at this distance is detached, and so no longer points at the well.
inline bool tearsOff(qreal distance)
{
    return distance >= tearOffDistance;
}

} // namespace lumora
