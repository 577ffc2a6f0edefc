// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

namespace lumora
{

/// The fully bright colour wheel of a radius in points for a screen of the scale factor, its rim smoothed, around it
/// nothing. Its size is the disc's, rounded up to whole pixels.
QImage wheelImage(qreal radius, qreal devicePixelRatio);

} // namespace lumora
