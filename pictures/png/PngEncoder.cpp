// SPDX-License-Identifier: MIT
#include "PngEncoder.h"

#include "PngRows.h"
#include "PngSection.h"
#include "foundation/MemoryLimit.h"
#include "foundation/ThreadGroup.h"
#include "pictures/pixels/PictureMemory.h"
#include "pictures/pixels/PixelFormat.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <vector>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

Failure emptyPicture(const QString &name)
{
    return {FailureCode::InvalidValue, name, "DETAIL_EMPTY_PICTURE"};
}

/// Gives the work the picture's rows.
template <typename Work> Result<QByteArray> encoded(const QImage &picture, const QString &name, const Work &work)
{
    if (picture.isNull())
        return emptyPicture(name);
    return withinMemory(name, [&]() -> Result<QByteArray> { return work(ImageRows(picture)); });
}

Result<QByteArray> encodedInSections(const PngRows &picture, int threads, const QString &name,
                                     PngChannels channels = PngChannels::Rgba)
{
    std::vector<PngSection> sections(static_cast<std::size_t>(pngSectionCount(picture.size())));
    std::atomic<std::size_t> next = 0;
    std::atomic<bool> isWhole = true;
    const auto makeSections = [&] {
        const Outcome made = withinMemory(name, [&]() -> Outcome {
            for (std::size_t index = next++; index < sections.size(); index = next++)
                sections[index] = makePngSection(picture, static_cast<int>(index), channels);
            return Done{};
        });
        if (!made)
            isWhole = false;
    };
    {
        ThreadGroup helpers;
        if (sections.size() > 1)
            helpers.start(std::min(static_cast<std::size_t>(std::max(threads, 1)), sections.size()) - 1, makeSections);
        makeSections();
    }
    if (!isWhole)
        return outOfMemory(name);
    return joinPngSections(picture.size(), sections, channels);
}

} // namespace

Result<QByteArray> encodePng(const QImage &picture, const QString &name)
{
    return encoded(picture, name, [&](const PngRows &rows) { return encodedInSections(rows, 1, name); });
}

Result<QByteArray> encodePngQuickly(const QImage &picture, const QString &name)
{
    return encoded(picture, name, [](const PngRows &rows) {
        return joinPngSections(rows.size(), std::array{makeOnlyPngSection(rows)});
    });
}

Result<QByteArray> encodePng(const PngRows &picture, int threads, const QString &name)
{
    if (picture.size().isEmpty())
        return emptyPicture(name);
    return withinMemory(name, [&] { return encodedInSections(picture, threads, name); });
}

Result<QByteArray> encodeOpaquePng(const PngRows &picture, int threads, const QString &name)
{
    if (picture.size().isEmpty())
        return emptyPicture(name);
    return withinMemory(name, [&] { return encodedInSections(picture, threads, name, PngChannels::Rgb); });
}

Result<QByteArray> encodeOpaquePng(const QImage &picture, int threads, const QString &name)
{
    return withinMemory(name, [&] {
        // The premultiplied colors are those of the picture on black.
        QImage onBlack = premultiplied(picture);
        onBlack.reinterpretAsFormat(QImage::Format_RGBA8888);
        return encoded(onBlack, name, [&](const PngRows &rows) { return encodeOpaquePng(rows, threads, name); });
    });
}

} // namespace lumora
