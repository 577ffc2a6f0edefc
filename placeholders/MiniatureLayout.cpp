// SPDX-License-Identifier: MIT
#include "MiniatureLayout.h"

#include <algorithm>

namespace lumora
{

namespace
{

struct Row
{
    QList<QSizeF> sizes;
    double width = 0;
    double height = 0;
};

QList<Row> rowsAtScale(const QList<QSize> &pictures, double scale, double width, double gap)
{
    QList<Row> rows;
    for (const QSize &picture : pictures) {
        const QSizeF size = QSizeF(picture) * scale;
        if (rows.isEmpty() || rows.constLast().width + gap + size.width() > width)
            rows.append(Row());
        Row &row = rows.last();
        row.width += (row.sizes.isEmpty() ? 0 : gap) + size.width();
        row.height = std::max(row.height, size.height());
        row.sizes << size;
    }
    return rows;
}

double totalHeight(const QList<Row> &rows, double gap)
{
    double height = gap * static_cast<double>(rows.size() - 1);
    for (const Row &row : rows)
        height += row.height;
    return height;
}

bool fits(const QList<Row> &rows, const QSizeF &area, double gap)
{
    return totalHeight(rows, gap) <= area.height() &&
           std::all_of(rows.begin(), rows.end(), [&area](const Row &row) { return row.width <= area.width(); });
}

} // namespace

QList<QRectF> miniatureRectangles(const QList<QSize> &pictures, const QRectF &area, double gap)
{
    if (pictures.isEmpty() || area.isEmpty())
        return {};
    // After this number of halvings the error is below a thousandth of a point for the largest picture.
    constexpr int halvings = 24;
    double fitting = 0;
    double limit = 1;
    if (fits(rowsAtScale(pictures, 1, area.width(), gap), area.size(), gap))
        fitting = 1;
    for (int i = 0; i < halvings && fitting < 1; ++i) {
        const double scale = (fitting + limit) / 2;
        (fits(rowsAtScale(pictures, scale, area.width(), gap), area.size(), gap) ? fitting : limit) = scale;
    }
    const QList<Row> rows = rowsAtScale(pictures, fitting, area.width(), gap);
    QList<QRectF> rectangles;
    double y = area.center().y() - totalHeight(rows, gap) / 2;
    for (const Row &row : rows) {
        double x = area.center().x() - row.width / 2;
        for (const QSizeF &size : row.sizes) {
            rectangles << QRectF(QPointF(x, y + (row.height - size.height()) / 2), size);
            x += size.width() + gap;
        }
        y += row.height + gap;
    }
    return rectangles;
}

} // namespace lumora
