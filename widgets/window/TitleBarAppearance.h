// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPixmap>

namespace lumora
{

/// The generation of a platform's look that the title bar follows.
enum class PlatformGeneration { Older, Newer };

/// The generation for every platform on which this program runs.
inline constexpr PlatformGeneration platformGeneration = PlatformGeneration::Newer;

/// The grays of a title bar without colors of its own.
struct TitleBarGrays
{
    float gradientTop;
    float gradientBottom;
    float baselineSeparator;
};
TitleBarGrays titleBarGrays(PlatformGeneration generation, bool drawsAsMainWindow);
QColor opaqueGray(float white);

/// The opacity of the line along a title bar's upper edge and of the noise over it, 0 to 1.
inline constexpr float titleBarHighlightAlpha = 0.12F;
inline constexpr qreal titleBarNoiseOpacity = 0.1;
/// The radius of the title bar's upper corners, in points.
inline constexpr qreal titleBarCornerRadius = 4;

/// A tile of even gray noise, the same on every run.
QPixmap noiseTexture();

} // namespace lumora
