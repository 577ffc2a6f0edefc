// SPDX-License-Identifier: MIT
#include "PngEncoder.h"

#include "PixelFormat.h"
#include "PngSection.h"

#include <vector>

namespace lumora
{

QByteArray encodePng(const QImage &picture)
{
    if (picture.isNull())
        return {};
    const QImage pixels = straight(picture);
    std::vector<PngSection> sections;
    for (int index = 0; index < pngSectionCount(pixels.size()); ++index)
        sections.push_back(makePngSection(pixels, index));
    return joinPngSections(pixels.size(), sections);
}

} // namespace lumora
