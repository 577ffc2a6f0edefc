// SPDX-License-Identifier: MIT
#pragma once

namespace lumora
{

class ColorPlanes;

/// Removes the ringing from `scaled`, which is `picture` in another size. A filter with lobes leaves faint ripples
/// beside every edge, lighter and darker than the source: a halo around the shapes of a drawing, which also makes up
/// most of its file. So every sample is clamped to the least and the most of the picture's samples that the filter's
/// middle lobe covers: those less than one pixel of the coarser picture away from its center, in both directions. Where
/// these are all equal, the result is exactly that value. Both have the same channels and depth.
void clampRinging(const ColorPlanes &picture, ColorPlanes &scaled);

} // namespace lumora
