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

/// How a palette is kept: one color set a color, GIMP's text, our own JSON, CSS variables.
enum class PaletteFormat { ColorSets, Gpl, Json, CssVariables };

/// One file of a saved palette.
struct PaletteFile
{
    QString path; ///< relative; of color sets in a folder each
    QByteArray content;
};

/// The largest file that is read, and the most colors taken from one.
inline constexpr qsizetype largestPaletteFile = 4 * 1024 * 1024;
inline constexpr std::size_t mostPaletteColors = 10000;

/// The palette as files. `name` is the palette's and the file's. GIMP's format keeps neither opacity nor gamut: its
/// colors are clipped to sRGB. Names that a format can't hold are brought to ones it can, and numbered where two become
/// one.
std::vector<PaletteFile> paletteFiles(const Palette &palette, const QString &name, PaletteFormat format);

/// Reads any one of the files, told apart by what is in it; `name` names a color set's color, and the file in a
/// failure. Refused as a whole where a color of it is not understood, with the line or name in `detail`.
Result<Palette> readPalette(const QByteArray &content, const QString &name);

} // namespace lumora
