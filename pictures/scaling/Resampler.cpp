// SPDX-License-Identifier: MIT
#include "Resampler.h"

#include "ColorPlanes.h"
#include "FlatAreas.h"
#include "TranslucentResampler.h"
#include "pictures/pixels/PixelFormat.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace lumora
{

namespace
{

/// Small sizes are made from halves of the source: each halving is a Lanczos step of its own, and as long as this much
/// of it remains for the last step neither aliasing nor sharpness differ from a single step by more than rounding.
constexpr double smallestLastStep = 2.5;

/// The half itself is among them: it is kept, so that it need not be made twice.
bool isMadeFromHalf(QSize source, QSize size)
{
    const QSize half = source / 2;
    // An odd edge has no half whose pixels cover the source's exactly.
    return half * 2 == source && (size == half || (size.width() * smallestLastStep <= half.width() &&
                                                   size.height() * smallestLastStep <= half.height()));
}

bool isOpaque(const QImage &source)
{
    const int width = source.width();
    for (int y = 0; y < source.height(); ++y) {
        const std::uint8_t *pixel = source.constScanLine(y);
        std::uint8_t smallest = 255;
        for (int x = 0; x < width; ++x)
            smallest = std::min(smallest, pixel[4 * x + 3]);
        if (smallest < 255)
            return false;
    }
    return true;
}

constexpr int opaqueChannels = 3;

/// Red, green and blue, and alpha unless all of it is opaque. Null for an empty picture.
std::unique_ptr<ColorPlanes> takenApart(const QImage &picture)
{
    if (picture.isNull())
        return nullptr;
    const bool opaque = isOpaque(picture);
    auto planes =
        std::make_unique<ColorPlanes>(picture.size(), opaque ? opaqueChannels : opaqueChannels + 1, SampleDepth::Bits8);
    const int width = picture.width();
    for (int y = 0; y < picture.height(); ++y) {
        const std::uint8_t *pixel = picture.constScanLine(y);
        auto *red = planes->row<std::uint8_t>(0, y);
        auto *green = planes->row<std::uint8_t>(1, y);
        auto *blue = planes->row<std::uint8_t>(2, y);
        for (int x = 0; x < width; ++x) {
            red[x] = pixel[4 * x];
            green[x] = pixel[4 * x + 1];
            blue[x] = pixel[4 * x + 2];
        }
        if (opaque)
            continue;
        auto *alpha = planes->row<std::uint8_t>(3, y);
        for (int x = 0; x < width; ++x)
            alpha[x] = pixel[4 * x + 3];
    }
    return planes;
}

QImage putTogether(const ColorPlanes &planes)
{
    QImage result(planes.size(), QImage::Format_RGBA8888_Premultiplied);
    if (result.isNull())
        return {};
    const bool opaque = planes.channels() == opaqueChannels;
    const int width = result.width();
    for (int y = 0; y < result.height(); ++y) {
        const auto *red = planes.row<std::uint8_t>(0, y);
        const auto *green = planes.row<std::uint8_t>(1, y);
        const auto *blue = planes.row<std::uint8_t>(2, y);
        const auto *alpha = opaque ? nullptr : planes.row<std::uint8_t>(3, y);
        std::uint8_t *pixel = result.scanLine(y);
        for (int x = 0; x < width; ++x, pixel += 4) {
            // The filter's overshoot may lift a colour above its alpha, which no premultiplied pixel can hold.
            const std::uint8_t limit = alpha != nullptr ? alpha[x] : 255;
            pixel[0] = std::min(red[x], limit);
            pixel[1] = std::min(green[x], limit);
            pixel[2] = std::min(blue[x], limit);
            pixel[3] = limit;
        }
    }
    return result;
}

} // namespace

Resampler::Resampler(const QImage &source) : Resampler(takenApart(premultiplied(source))) {}

Resampler::Resampler(std::unique_ptr<ColorPlanes> planes) : m_planes(std::move(planes)) {}

Resampler::~Resampler() = default;

std::unique_ptr<ColorPlanes> Resampler::planesOf(QSize size) const
{
    std::unique_ptr<ColorPlanes> scaled = m_planes->scaledTo(size);
    if (scaled == nullptr)
        return nullptr;
    std::call_once(m_flatAreasFound, [this] { m_flatAreas = std::make_unique<FlatAreas>(*m_planes); });
    m_flatAreas->restoreIn(*scaled);
    return scaled;
}

const Resampler &Resampler::half() const
{
    std::call_once(m_halved,
                   [this] { m_half = std::unique_ptr<Resampler>(new Resampler(planesOf(m_planes->size() / 2))); });
    return *m_half;
}

QImage Resampler::scaledTo(QSize size) const
{
    if (m_planes == nullptr || size.isEmpty())
        return {};
    if (size == m_planes->size())
        return putTogether(*m_planes);
    std::unique_ptr<ColorPlanes> scaled;
    if (isMadeFromHalf(m_planes->size(), size)) {
        const Resampler &halved = half();
        if (halved.m_planes == nullptr || size != halved.m_planes->size())
            return halved.scaledTo(size);
        // Smaller sizes are made from the half as it is, so that what is rounded is rounded once.
        scaled = std::make_unique<ColorPlanes>(*halved.m_planes);
    } else {
        scaled = planesOf(size);
    }
    if (scaled == nullptr)
        return {};
    m_flatAreas->roundEdgesIn(*scaled);
    return putTogether(*scaled);
}

QImage resample(const QImage &source, QSize size)
{
    return Resampler(source).scaledTo(size);
}

QImage resampleStraight(QImage source, QSize size)
{
    if (source.isNull() || size.isEmpty())
        return {};
    source.convertTo(QImage::Format_RGBA8888);
    if (!isOpaque(source))
        return resampleTranslucent(source, size);
    // Without transparency both formats say the same.
    source.reinterpretAsFormat(QImage::Format_RGBA8888_Premultiplied);
    QImage result = Resampler(source).scaledTo(size);
    result.reinterpretAsFormat(QImage::Format_RGBA8888);
    return result;
}

} // namespace lumora
