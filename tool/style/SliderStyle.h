// SPDX-License-Identifier: MIT
#pragma once

class QColor;
class QSlider;

namespace lumora
{

/// A slim groove with a round handle in the tool's color, of the height of a line of text.
void styleSlider(QSlider *slider, const QColor &handle);

} // namespace lumora
