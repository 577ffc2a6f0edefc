// SPDX-License-Identifier: MIT
#pragma once

namespace lumora
{

class ColorPlanes;

/// Takes the ringing out of `scaled`, which is `picture` in another size. A filter with lobes leaves faint ripples
/// beside every edge, lighter and darker than anything there: a halo around the shapes of a drawing, which also costs
/// most of its file. So every sample is kept between the least and the most of the picture's samples that the filter's
/// middle lobe sees, those less than one pixel of the coarser picture from its center both ways. Where these are all
/// alike, the sample is exactly that. Both have the same channels and depth.
void clampRinging(const ColorPlanes &picture, ColorPlanes &scaled);

} // namespace lumora
