// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QFont>

class QLabel;

namespace lumora
{

/// Sets a label's font and color, aligns it to the start if it was not centered, and shows its text as plain text,
/// since file names may look like markup.
void styleLabel(QLabel *label, const QFont &font, const QColor &color);

/// Aligns the text to the side where reading begins in this language. By default a label looks at its text, and a
/// foreign name in a mirrored window would begin at the other side.
void alignToStart(QLabel *label, Qt::Alignment vertical = Qt::AlignVCenter);

} // namespace lumora
