// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/RgbaColor.h"

#include <QString>

#include <cstdlib>
#include <functional>

namespace lumora
{

// Only the tests call the first two; they complete the color class.

/// A new platform color in generic RGB with the same red, green, blue and opacity, whatever the model of the given one.
/// The caller owns it, like any value.
QColor copyCGColor(const QColor &color);

/// Returns a random number from 0 to 2^31 - 1, as random(3) does.
using RandomSource = std::function<long()>;

/// An opaque color of three numbers drawn in the order red, green, blue, each times 2^-31.
RgbaColor randomColor(const RandomSource &random = ::random);

/// "r: 52, g: 73, b: 94, a: 255": each component times 255, rounded to the nearest integer. For logs.
QString colorDescription(const RgbaColor &color);

} // namespace lumora
