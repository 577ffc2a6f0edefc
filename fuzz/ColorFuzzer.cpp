// SPDX-License-Identifier: MIT
// Any text as a color and as a palette: a color that is read is written in every form, and every form is read back as
// the same color.
#include "color/forms/ColorForm.h"
#include "color/forms/ColorReader.h"
#include "color/palettes/Palette.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

using namespace lumora;

namespace
{

void hold(bool expected)
{
    if (!expected)
        std::abort();
}

/// Whether four bytes say all there is to the color.
bool isOfWholeBytes(const WideColor &color)
{
    const auto [red, green, blue, alpha] = bytesOf(color);
    return color == wideColorFromBytes(red, green, blue, alpha);
}

/// The most that a form may move a color that lies between bytes, in bytes: half of one where the form has bytes, and
/// what double precision loses on the way.
constexpr double mostRounding = 0.5 + 1e-9;

bool areNear(const WideColor &one, const WideColor &other)
{
    const WideColor first = clippedTo(one, RgbSpace::Srgb);
    const WideColor second = clippedTo(other, RgbSpace::Srgb);
    return std::max({std::abs(first.red - second.red), std::abs(first.green - second.green),
                     std::abs(first.blue - second.blue), std::abs(first.alpha - second.alpha)}) *
               255 <=
           mostRounding;
}

bool isTheSame(const WideColor &back, const WideColor &color)
{
    return isOfWholeBytes(color) ? bytesOf(back) == bytesOf(color) : areNear(back, color);
}

void checkForms(const WideColor &color)
{
    for (const ColorForm &form : colorForms()) {
        const Result<ColorReading> back = readColor(formText(form, color));
        // Even the forms for any gamut cannot write every color far outside all screens.
        if (form.showsAnyGamut && (!back || isClippedIn(color, RgbSpace::DisplayP3)))
            continue;
        hold(back.ok() && isTheSame(back.value().color, color));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    if (const Result<ColorReading> reading = readColor(QString::fromUtf8(bytes)))
        checkForms(reading.value().color);
    if (const Result<Palette> palette = readPalette(bytes, QStringLiteral("palette"))) {
        for (const PaletteFormat format : {PaletteFormat::Json, PaletteFormat::CssVariables}) {
            const auto files = paletteFiles(palette.value(), QStringLiteral("palette"), format);
            const Result<Palette> back = readPalette(files.front().content, QStringLiteral("palette"));
            hold(back.ok() && back.value().size() == palette.value().size());
        }
    }
    return 0;
}
