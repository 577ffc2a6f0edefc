// SPDX-License-Identifier: MIT
#include "FlatDrawings.h"

#include <algorithm>
#include <cmath>

using namespace lumora;

namespace flat_drawings
{

namespace
{

QColor mixed(QColor over, QColor under, double share)
{
    const auto channel = [share](int a, int b) { return static_cast<int>(std::lround(b + (a - b) * share)); };
    return QColor(channel(over.red(), under.red()), channel(over.green(), under.green()),
                  channel(over.blue(), under.blue()), channel(over.alpha(), under.alpha()));
}

} // namespace

double leftOfAnEdge(double x, double)
{
    return 501.3 - x;
}

double aboveASlope(double x, double y)
{
    return (700 - x - 0.4 * y) / std::hypot(1, 0.4);
}

double insideADisc(double x, double y)
{
    return 390 - std::hypot(x - 520, y - 505);
}

double insideAHole(double x, double y)
{
    return std::hypot(x - 300, y - 411) - 37;
}

QImage drawn(Shape shape, QColor color, QColor ground, int edge)
{
    QImage picture(edge, edge, QImage::Format_RGBA8888);
    for (int y = 0; y < edge; ++y) {
        for (int x = 0; x < edge; ++x) {
            const double inside = std::clamp(shape(x + 0.5, y + 0.5) + 0.5, 0.0, 1.0);
            const QColor pixel = inside == 0 ? ground : inside == 1 ? color : mixed(color, ground, inside);
            picture.setPixel(x, y, pixel.rgba());
        }
    }
    return picture;
}

ColorPlanes redPlane(const QImage &picture)
{
    ColorPlanes plane(picture.size(), 1, SampleDepth::Bits8);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            plane.row<std::uint8_t>(0, y)[x] = static_cast<std::uint8_t>(qRed(picture.pixel(x, y)));
    }
    return plane;
}

} // namespace flat_drawings
