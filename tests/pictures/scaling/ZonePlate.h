// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

#include <cmath>
#include <numbers>

namespace lumora
{

inline constexpr int zonePlateEdge = 1024;

/// The zone plate cos(pi * r^2 * 0.5 / 512), r in source pixels from the center: its local frequency at r is r * 0.5 /
/// 512 cycles a pixel.
inline double zonePlate(double x, double y)
{
    return 127.5 * (1 + std::cos(std::numbers::pi * (x * x + y * y) * 0.5 / 512));
}

/// The plate in gray, opaque.
inline QImage zonePlatePicture()
{
    QImage picture(zonePlateEdge, zonePlateEdge, QImage::Format_RGB32);
    for (int y = 0; y < zonePlateEdge; ++y) {
        for (int x = 0; x < zonePlateEdge; ++x) {
            const int gray = static_cast<int>(std::lround(zonePlate(x + 0.5 - 512, y + 0.5 - 512)));
            picture.setPixel(x, y, qRgb(gray, gray, gray));
        }
    }
    return picture;
}

/// The error of a scaled plate.
struct ZonePlateErrors
{
    double aliasing = 0;
    double passband = 0;
};

/// The errors of the plate scaled to a smaller square, in any format that begins with red, as root mean squares in
/// 8-bit levels: of the deviation from gray where the target cannot hold the detail, and of the deviation from the
/// plate where it easily can.
inline ZonePlateErrors zonePlateErrors(const QImage &scaled)
{
    const int edge = scaled.width();
    const double step = double{zonePlateEdge} / edge;
    const double nyquist = 512.0 / step;
    double aliasing = 0;
    double passband = 0;
    int aliased = 0;
    int passed = 0;
    for (int y = 0; y < edge; ++y) {
        for (int x = 0; x < edge; ++x) {
            const double sx = (x + 0.5) * step - 512;
            const double sy = (y + 0.5) * step - 512;
            const double r = std::hypot(sx, sy);
            const double value = scaled.constScanLine(y)[4 * x];
            if (r > 1.3 * nyquist && r < 500) {
                aliasing += (value - 127.5) * (value - 127.5);
                ++aliased;
            } else if (r < 0.6 * nyquist) {
                const double error = value - zonePlate(sx, sy);
                passband += error * error;
                ++passed;
            }
        }
    }
    return {aliased == 0 ? 0 : std::sqrt(aliasing / aliased), passed == 0 ? 0 : std::sqrt(passband / passed)};
}

} // namespace lumora
