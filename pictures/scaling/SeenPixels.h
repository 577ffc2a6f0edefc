// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

namespace lumora
{

/// The pixels of a picture's row or column from `first` to `last`, both included and never the same.
struct Stretch
{
    int first = 0;
    int last = 0;
};

/// For each pixel of a scaled row or column the stretch of the picture's that lies, wholly or in part, within
/// `halfPixels` halves of a pixel from its centre: of a scaled pixel, or of the picture's own where it is enlarged. All
/// integers, so that no rounding differs from one machine to the next.
std::vector<Stretch> stretchesSeen(int scaled, int picture, int halfPixels);

} // namespace lumora
