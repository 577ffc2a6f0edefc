// SPDX-License-Identifier: MIT
#pragma once

#include "color/spaces/WideColor.h"
#include "foundation/Result.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace lumora
{

struct PaletteColor
{
    QString name;
    WideColor color;

    bool operator==(const PaletteColor &) const = default;
};

using Palette = std::vector<PaletteColor>;

/// The formats of a palette: one color set per color, GIMP's text, our own JSON, CSS variables.
enum class PaletteFormat { ColorSets, Gpl, Json, CssVariables };

/// One file of a saved palette.
struct PaletteFile
{
    QString path; ///< relative; each color set is in a folder of its own
    QByteArray content;
};

/// The largest file that is read, and the most colors in a file.
inline constexpr qsizetype largestPaletteFile = 4 * 1024 * 1024;
inline constexpr std::size_t mostPaletteColors = 10000;

/// The palette as files. `name` is the palette's and the file's. GIMP's format keeps neither opacity nor gamut: its
/// colors are clipped to sRGB. Names that a format cannot hold are changed, and numbered if two become the same.
std::vector<PaletteFile> paletteFiles(const Palette &palette, const QString &name, PaletteFormat format);

/// Reads a file of any of these formats, recognized by its content. `name` becomes the name of a color set's color, and
/// is the subject of a failure. Fails if one color is not understood, with its line or name in `detail`.
Result<Palette> readPalette(const QByteArray &content, const QString &name);

} // namespace lumora
