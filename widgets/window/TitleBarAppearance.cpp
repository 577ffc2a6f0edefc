// SPDX-License-Identifier: MIT
#include "TitleBarAppearance.h"

#include <QImage>

#include <random>

namespace lumora
{

TitleBarGrays titleBarGrays(PlatformGeneration generation, bool drawsAsMainWindow)
{
    if (generation == PlatformGeneration::Newer)
        return drawsAsMainWindow ? TitleBarGrays{0.66F, 0.9F, 0.408F} : TitleBarGrays{0.878F, 0.976F, 0.655F};
    return drawsAsMainWindow ? TitleBarGrays{0.659F, 0.812F, 0.318F} : TitleBarGrays{0.851F, 0.929F, 0.6F};
}

QColor opaqueGray(float white)
{
    return QColor::fromRgbF(white, white, white);
}

QPixmap noiseTexture()
{
    constexpr int side = 128;
    // The noise's range around middle gray: enough to break up a smooth gradient, too little to be visible as a
    // pattern.
    constexpr int middle = 128;
    constexpr int spread = 48;
    QImage tile(side, side, QImage::Format_RGB32);
    std::minstd_rand random(1);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const int gray = middle - spread + static_cast<int>((random() >> 8) % (2 * spread + 1));
            tile.setPixel(x, y, qRgb(gray, gray, gray));
        }
    }
    return QPixmap::fromImage(tile);
}

} // namespace lumora
