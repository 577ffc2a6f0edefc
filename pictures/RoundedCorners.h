// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

namespace lumora
{

/// How an icon's corners are cut; the tools pass the numbers on.
enum class CornerMode : int { None = 0, Ios6 = 1, Ios7 = 2 };

/// The style of that number; numbers of no style mean square corners.
CornerMode cornerModeOf(int number);

/// The corner radius in pixels of an icon `size` pixels wide: size / 6.4 for iOS 6, size / 4.444444 for iOS 7, both in
/// single precision, and 0 for square ones.
float cornerRadius(int size, CornerMode mode);

/// Cuts circular corners of `radius` pixels into a `Format_RGBA8888_Premultiplied` picture: pixels inside the arcs
/// stay, pixels outside become fully transparent, and a pixel on an arc keeps the share of it that lies inside.
void roundCorners(QImage &picture, float radius);

} // namespace lumora
