// SPDX-License-Identifier: MIT
#pragma once

#include <QPainterPath>
#include <QRect>

#include <span>
#include <vector>

namespace lumora
{

/// The share of each pixel that a filled outline covers. Rows may be computed in any order and by several threads at
/// once. The area is computed exactly, without a graphics backend, so that the result is the same everywhere.
class OutlineCoverage
{
public:
    /// The outline in pixels, y downwards; its contours may not overlap one another except as holes.
    explicit OutlineCoverage(const QPainterPath &outline);

    /// The smallest whole-pixel rectangle around the outline; no pixel outside is covered.
    QRect bounds() const { return m_bounds; }
    /// Writes the coverage, 0 to 255, of the pixels (bounds().left() + i, row) for each i below bounds().width().
    void readRow(int row, std::span<unsigned char> coverage) const;

private:
    /// A straight edge with top above bottom.
    struct Edge
    {
        QPointF top;
        QPointF bottom;
        double direction = 0.0; ///< +1 where the outline runs downwards, -1 where upwards
    };
    void addLine(QPointF from, QPointF to);
    void addCurve(QPointF from, QPointF control1, QPointF control2, QPointF to);

    std::vector<Edge> m_edges; ///< relative to the bounds' left edge, so that columns count from 0
    QRect m_bounds;
};

} // namespace lumora
