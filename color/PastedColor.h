// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/RgbaColor.h"

#include <QString>

#include <optional>

namespace lumora
{

/// A color that comes as a text from elsewhere.
struct PastedColor
{
    RgbaColor color; ///< its components are whole bytes, the nearest ones: codes print a cut-off fraction
    QString digits;  ///< its three or six digits as they were written, with or without "#"; else "#rrggbb"
};

/// Understands every form that `readColor` does, with any blanks around it; nothing where the text is no color.
std::optional<PastedColor> pastedColor(const QString &text);

} // namespace lumora
