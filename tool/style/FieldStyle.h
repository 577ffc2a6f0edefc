// SPDX-License-Identifier: MIT
#pragma once

class QColor;
class QLineEdit;

namespace lumora
{

/// A white field with a thin outline, which takes the tool's color while it has the keyboard.
void styleField(QLineEdit *field, const QColor &focused);

} // namespace lumora
