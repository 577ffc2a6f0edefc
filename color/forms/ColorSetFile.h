// SPDX-License-Identifier: MIT
#pragma once

#include "color/spaces/WideColor.h"

#include <QByteArray>

#include <optional>
#include <vector>

namespace lumora
{

/// One color of an asset catalogue's color set.
struct ColorSetEntry
{
    WideColor color;
    QString appearance; ///< "dark", "high" and the like, joined by a space; empty for the color of any appearance
};

/// Reads a color set's Contents.json: sRGB, extended and linear sRGB, Display P3 and gray, with components as
/// fractions, bytes or hexadecimal bytes. Empty if any color has another form, so that a set is never read in part.
std::optional<std::vector<ColorSetEntry>> readColorSet(const QByteArray &json);

} // namespace lumora
