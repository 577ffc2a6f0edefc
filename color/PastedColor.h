// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/RgbaColor.h"

#include <QString>

#include <optional>

namespace lumora
{

/// A color from a pasted text.
struct PastedColor
{
    RgbaColor color; ///< its components are rounded to whole bytes, since codes truncate
    QString digits;  ///< its three or six digits as written, with or without "#"; else "#rrggbb"
};

/// Reads every form of `readColor`, with any spaces around it; empty if the text is not a color.
std::optional<PastedColor> pastedColor(const QString &text);

} // namespace lumora
