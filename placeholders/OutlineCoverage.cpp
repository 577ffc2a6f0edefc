// SPDX-License-Identifier: MIT
#include "OutlineCoverage.h"

#include <algorithm>
#include <cmath>

namespace lumora
{

namespace
{

/// An edge's passage through one row of pixels.
struct Passage
{
    double left;   ///< its least x
    double right;  ///< its greatest x
    double height; ///< the share of the row that it crosses, signed by direction

    /// The area right of the edge and left of the vertical line at x.
    double areaUpTo(double x) const
    {
        if (x <= left)
            return 0;
        if (x >= right)
            return height * (x - (left + right) / 2);
        return height * (x - left) * (x - left) / (2 * (right - left));
    }
};

/// Adds the passage's area to the differences between neighboring pixels; their running sum is the coverage.
void addPassage(const Passage &passage, std::span<double> differences)
{
    const auto last = static_cast<std::ptrdiff_t>(differences.size()) - 1;
    const auto first = std::clamp<std::ptrdiff_t>(static_cast<std::ptrdiff_t>(std::floor(passage.left)), 0, last);
    const auto end = std::clamp<std::ptrdiff_t>(static_cast<std::ptrdiff_t>(std::floor(passage.right)) + 1, 0, last);
    double before = 0;
    double areaBefore = passage.areaUpTo(static_cast<double>(first));
    for (std::ptrdiff_t pixel = first; pixel < end; ++pixel) {
        const double area = passage.areaUpTo(static_cast<double>(pixel + 1));
        const double inPixel = area - areaBefore;
        differences[static_cast<std::size_t>(pixel)] += inPixel - before;
        before = inPixel;
        areaBefore = area;
    }
    differences[static_cast<std::size_t>(end)] += passage.height - before;
}

QPointF between(QPointF from, QPointF to, double part)
{
    return from + (to - from) * part;
}

} // namespace

OutlineCoverage::OutlineCoverage(const QPainterPath &outline)
{
    if (outline.isEmpty())
        return;
    m_bounds = outline.boundingRect().toAlignedRect();
    QPointF start;
    QPointF current;
    for (int i = 0; i < outline.elementCount(); ++i) {
        const QPainterPath::Element element = outline.elementAt(i);
        switch (element.type) {
        case QPainterPath::MoveToElement:
            addLine(current, start);
            start = element;
            current = element;
            break;
        case QPainterPath::LineToElement:
            addLine(current, element);
            current = element;
            break;
        case QPainterPath::CurveToElement: {
            const QPointF to = outline.elementAt(i + 2);
            addCurve(current, element, outline.elementAt(i + 1), to);
            current = to;
            i += 2;
            break;
        }
        case QPainterPath::CurveToDataElement:
            break;
        }
    }
    addLine(current, start);
}

void OutlineCoverage::addLine(QPointF from, QPointF to)
{
    if (from.y() == to.y())
        return;
    const QPointF origin(m_bounds.left(), 0);
    if (from.y() < to.y())
        m_edges.push_back({from - origin, to - origin, 1});
    else
        m_edges.push_back({to - origin, from - origin, -1});
}

void OutlineCoverage::addCurve(QPointF from, QPointF control1, QPointF control2, QPointF to)
{
    // A chord's distance from its curve falls with the square of the number of chords and grows with the hull's
    // length: four chords for each square root of that length keep it below a fiftieth of a pixel for bowls of letters.
    const double hull =
        QLineF(from, control1).length() + QLineF(control1, control2).length() + QLineF(control2, to).length();
    const int chords = std::max(4, static_cast<int>(std::ceil(4 * std::sqrt(hull))));
    QPointF previous = from;
    for (int i = 1; i <= chords; ++i) {
        const double part = static_cast<double>(i) / chords;
        const QPointF a = between(from, control1, part);
        const QPointF b = between(control1, control2, part);
        const QPointF c = between(control2, to, part);
        const QPointF point = i == chords ? to : between(between(a, b, part), between(b, c, part), part);
        addLine(previous, point);
        previous = point;
    }
}

void OutlineCoverage::readRow(int row, std::span<unsigned char> coverage) const
{
    std::vector<double> differences(coverage.size() + 1, 0.0);
    for (const Edge &edge : m_edges) {
        const double top = std::max(edge.top.y(), static_cast<double>(row));
        const double bottom = std::min(edge.bottom.y(), static_cast<double>(row) + 1);
        if (top >= bottom)
            continue;
        const double slope = (edge.bottom.x() - edge.top.x()) / (edge.bottom.y() - edge.top.y());
        const double topX = edge.top.x() + (top - edge.top.y()) * slope;
        const double bottomX = edge.top.x() + (bottom - edge.top.y()) * slope;
        addPassage({std::min(topX, bottomX), std::max(topX, bottomX), (bottom - top) * edge.direction}, differences);
    }
    double sum = 0;
    for (std::size_t i = 0; i < coverage.size(); ++i) {
        sum += differences[i];
        coverage[i] = static_cast<unsigned char>(std::lround(std::min(std::abs(sum), 1.0) * 255));
    }
}

} // namespace lumora
