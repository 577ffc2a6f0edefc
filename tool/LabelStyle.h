// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QFont>

class QLabel;

namespace lumora
{

/// Gives a label its font and color; what it shows is taken as plain text, whatever a file name or a key looks like.
void styleLabel(QLabel *label, const QFont &font, const QColor &color);

} // namespace lumora
