// SPDX-License-Identifier: MIT
#include "MiniatureLayout.h"

#include <algorithm>
#include <cmath>

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

bool hasCaption(double width, const CaptionRule &rule)
{
    return width < rule.readableWidth;
}

QSizeF cellSize(const QSizeF &miniature, const CaptionRule &rule)
{
    if (!hasCaption(miniature.width(), rule))
        return miniature;
    return {std::max(miniature.width(), rule.size.width()), miniature.height() + rule.size.height()};
}

QList<Row> rowsAtScale(const QList<QSize> &pictures, double scale, double width, double gap, const CaptionRule &rule)
{
    QList<Row> rows;
    for (const QSize &picture : pictures) {
        const QSizeF size = cellSize(QSizeF(picture) * scale, rule);
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

QList<Miniature> captionedMiniatures(const QList<QSize> &pictures, const QRectF &area, double gap,
                                     const CaptionRule &rule)
{
    if (pictures.isEmpty() || area.isEmpty())
        return {};
    // After this number of halvings the error is below a thousandth of a point for the largest picture.
    constexpr int halvings = 24;
    double fitting = 0;
    double limit = 1;
    if (fits(rowsAtScale(pictures, 1, area.width(), gap, rule), area.size(), gap))
        fitting = 1;
    for (int i = 0; i < halvings && fitting < 1; ++i) {
        const double scale = (fitting + limit) / 2;
        (fits(rowsAtScale(pictures, scale, area.width(), gap, rule), area.size(), gap) ? fitting : limit) = scale;
    }
    const QList<Row> rows = rowsAtScale(pictures, fitting, area.width(), gap, rule);
    QList<Miniature> miniatures;
    double y = area.center().y() - totalHeight(rows, gap) / 2;
    for (const Row &row : rows) {
        double x = area.center().x() - row.width / 2;
        for (const QSizeF &size : row.sizes) {
            const QSizeF picture = QSizeF(pictures.at(miniatures.size())) * fitting;
            const QPointF corner(x + (size.width() - picture.width()) / 2, y + (row.height - size.height()) / 2);
            Miniature miniature{QRectF(corner, picture), {}};
            if (hasCaption(picture.width(), rule)) {
                const QPointF below(x + (size.width() - rule.size.width()) / 2, corner.y() + picture.height());
                miniature.caption = QRectF(below, rule.size);
            }
            miniatures << miniature;
            x += size.width() + gap;
        }
        y += row.height + gap;
    }
    return miniatures;
}

QRectF onPixels(const QRectF &rectangle, double scale)
{
    const auto snapped = [scale](double position) { return std::round(position * scale) / scale; };
    const QPointF corner(snapped(rectangle.left()), snapped(rectangle.top()));
    const double pixel = 1 / scale;
    return {corner, QSizeF(std::max(snapped(rectangle.right()) - corner.x(), pixel),
                           std::max(snapped(rectangle.bottom()) - corner.y(), pixel))};
}

QList<QRectF> miniatureRectangles(const QList<QSize> &pictures, const QRectF &area, double gap)
{
    QList<QRectF> rectangles;
    for (const Miniature &miniature : captionedMiniatures(pictures, area, gap, {}))
        rectangles << miniature.picture;
    return rectangles;
}

} // namespace lumora
