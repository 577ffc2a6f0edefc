// SPDX-License-Identifier: MIT
// Any text as a color and as a palette: a color that is read is written in every form, and every form is read back as
// the same color.
#include "color/forms/ColorForm.h"
#include "color/forms/ColorReader.h"
#include "color/palettes/Palette.h"

#include <algorithm>
#include <cstdlib>

using namespace lumora;

namespace
{

void hold(bool expected)
{
    if (!expected)
        std::abort();
}

/// A color halfway between two bytes may round either way once a form has rounded it.
template <typename Bytes> bool areNext(const Bytes &one, const Bytes &other)
{
    return std::equal(one.begin(), one.end(), other.begin(),
                      [](int first, int second) { return std::abs(first - second) <= 1; });
}

void checkForms(const WideColor &color)
{
    for (const ColorForm &form : colorForms()) {
        const Result<ColorReading> back = readColor(formText(form, color));
        // Even the forms for any gamut cannot write every color far outside all screens.
        if (form.showsAnyGamut && (!back || isClippedIn(color, RgbSpace::DisplayP3)))
            continue;
        hold(back.ok() && areNext(bytesOf(back.value().color), bytesOf(color)));
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
