// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>

namespace lumora
{

/// PNG's fourth predictor: of the samples to the left, above, and above to the left, the one nearest to left + above -
/// aboveLeft; of two that are equally near, the first in this order. Without branches, so that the compiler can
/// vectorize it.
inline int paeth(int left, int above, int aboveLeft)
{
    const int toLeft = std::abs(above - aboveLeft);
    const int toAbove = std::abs(left - aboveLeft);
    const int toAboveLeft = std::abs(above + left - 2 * aboveLeft);
    const int upper = toAbove <= toAboveLeft ? above : aboveLeft;
    return toLeft <= toAbove && toLeft <= toAboveLeft ? left : upper;
}

} // namespace lumora
