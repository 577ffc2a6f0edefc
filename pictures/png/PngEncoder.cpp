// SPDX-License-Identifier: MIT
#include "PngEncoder.h"

#include "PngRows.h"
#include "PngSection.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <thread>
#include <vector>

namespace lumora
{

QByteArray encodePng(const QImage &picture)
{
    if (picture.isNull())
        return {};
    return encodePng(ImageRows(picture), 1);
}

QByteArray encodePngQuickly(const QImage &picture)
{
    if (picture.isNull())
        return {};
    const ImageRows rows(picture);
    return joinPngSections(rows.size(), std::array{makeOnlyPngSection(rows)});
}

QByteArray encodePng(const PngRows &picture, int threads)
{
    std::vector<PngSection> sections(static_cast<std::size_t>(pngSectionCount(picture.size())));
    std::atomic<std::size_t> next = 0;
    const auto makeSections = [&] {
        for (std::size_t index = next++; index < sections.size(); index = next++)
            sections[index] = makePngSection(picture, static_cast<int>(index));
    };
    {
        std::vector<std::jthread> helpers;
        for (std::size_t i = 1; i < std::min(static_cast<std::size_t>(std::max(threads, 1)), sections.size()); ++i)
            helpers.emplace_back(makeSections);
        makeSections();
    }
    return joinPngSections(picture.size(), sections);
}

} // namespace lumora
