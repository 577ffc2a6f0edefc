// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>

#include <cmath>

namespace lumora
{

/// A popover dragged this many points from where it opened comes off; let go before, it returns.
inline constexpr qreal tearOffDistance = 50;

/// The straight line between two places of a window's origin.
inline qreal dragDistance(const QPointF &originalOrigin, const QPointF &origin)
{
    return std::hypot(origin.x() - originalOrigin.x(), origin.y() - originalOrigin.y());
}

/// Whether a popover this far away comes off, and so no longer points at the well.
inline bool tearsOff(qreal distance)
{
    return distance >= tearOffDistance;
}

} // namespace lumora
