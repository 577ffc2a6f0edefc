// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QFont>

class QLabel;

namespace lumora
{

/// Sets a label's font and color, and shows its text as plain text, since file names may look like markup.
void styleLabel(QLabel *label, const QFont &font, const QColor &color);

} // namespace lumora
