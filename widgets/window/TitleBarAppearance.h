// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPixmap>

namespace lumora
{

/// Which generation of a platform's look the title bar follows.
enum class PlatformGeneration { Older, Newer };

/// The generation of every platform this program runs on.
inline constexpr PlatformGeneration platformGeneration = PlatformGeneration::Newer;

/// The grays a title bar is drawn in as long as no colors were given.
struct TitleBarGrays
{
    float gradientTop;
    float gradientBottom;
    float baselineSeparator;
};
TitleBarGrays titleBarGrays(PlatformGeneration generation, bool drawsAsMainWindow);
QColor opaqueGray(float white);

/// How strongly the line along a title bar's upper edge and the noise over it are drawn, 0 to 1.
inline constexpr float titleBarHighlightAlpha = 0.12F;
inline constexpr qreal titleBarNoiseOpacity = 0.1;
/// Of the title bar's upper corners, in points.
inline constexpr qreal titleBarCornerRadius = 4;

/// A tile of even gray noise, the same on every run.
QPixmap noiseTexture();

} // namespace lumora
