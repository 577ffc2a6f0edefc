// SPDX-License-Identifier: MIT
#include "Resampler.h"

#include "PixelFormat.h"
#include "PlaneScaler.h"
#include "TranslucentResampler.h"

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

bool isMadeFromHalf(QSize source, QSize size)
{
    const QSize half = source / 2;
    // An odd edge has no half whose pixels cover the source's exactly.
    return half * 2 == source && size.width() * smallestLastStep <= half.width() &&
           size.height() * smallestLastStep <= half.height();
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

} // namespace

/// Red, green and blue, and alpha unless all of it is opaque, each a picture of its own.
struct Resampler::Planes
{
    Planes(QSize pixels, bool withAlpha)
        : size(pixels), count(withAlpha ? 4 : 3), stride(planeStride(pixels.width(), SampleDepth::Bits8)),
          samples(alignedBytes(static_cast<std::size_t>(stride * pixels.height() * count)))
    {
    }

    std::uint8_t *row(int channel, int y) const { return samples.get() + (channel * size.height() + y) * stride; }
    bool isOpaque() const { return count == 3; }

    static std::unique_ptr<Planes> ofPicture(const QImage &picture);
    std::unique_ptr<Planes> scaledTo(QSize wanted) const;
    QImage picture() const;

    QSize size;
    int count;
    qsizetype stride;
    AlignedBytes samples;
};

std::unique_ptr<Resampler::Planes> Resampler::Planes::ofPicture(const QImage &picture)
{
    auto planes = std::make_unique<Planes>(picture.size(), !lumora::isOpaque(picture));
    const int width = picture.width();
    for (int y = 0; y < picture.height(); ++y) {
        const std::uint8_t *pixel = picture.constScanLine(y);
        std::uint8_t *red = planes->row(0, y);
        std::uint8_t *green = planes->row(1, y);
        std::uint8_t *blue = planes->row(2, y);
        for (int x = 0; x < width; ++x) {
            red[x] = pixel[4 * x];
            green[x] = pixel[4 * x + 1];
            blue[x] = pixel[4 * x + 2];
        }
        if (planes->isOpaque())
            continue;
        std::uint8_t *alpha = planes->row(3, y);
        for (int x = 0; x < width; ++x)
            alpha[x] = pixel[4 * x + 3];
    }
    return planes;
}

/// Null where libzimg refuses the sizes.
std::unique_ptr<Resampler::Planes> Resampler::Planes::scaledTo(QSize wanted) const
{
    const PlaneScaler scaler(size, wanted, SampleDepth::Bits8);
    auto scaled = std::make_unique<Planes>(wanted, !isOpaque());
    for (int channel = 0; channel < count; ++channel) {
        if (!scaler.scale(row(channel, 0), scaled->row(channel, 0)))
            return nullptr;
    }
    return scaled;
}

QImage Resampler::Planes::picture() const
{
    QImage result(size, QImage::Format_RGBA8888_Premultiplied);
    if (result.isNull())
        return {};
    const int width = size.width();
    for (int y = 0; y < size.height(); ++y) {
        const std::uint8_t *red = row(0, y);
        const std::uint8_t *green = row(1, y);
        const std::uint8_t *blue = row(2, y);
        const std::uint8_t *alpha = isOpaque() ? nullptr : row(3, y);
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

Resampler::Resampler(const QImage &source) : Resampler(Planes::ofPicture(premultiplied(source))) {}

Resampler::Resampler(std::unique_ptr<Planes> planes) : m_planes(std::move(planes)) {}

Resampler::~Resampler() = default;

const Resampler &Resampler::half() const
{
    std::call_once(m_halved, [this] {
        m_half = std::unique_ptr<Resampler>(new Resampler(m_planes->scaledTo(m_planes->size / 2)));
    });
    return *m_half;
}

QImage Resampler::scaledTo(QSize size) const
{
    if (m_planes == nullptr || m_planes->size.isEmpty() || size.isEmpty())
        return {};
    if (size == m_planes->size)
        return m_planes->picture();
    if (isMadeFromHalf(m_planes->size, size))
        return half().scaledTo(size);
    const std::unique_ptr<Planes> scaled = m_planes->scaledTo(size);
    return scaled == nullptr ? QImage() : scaled->picture();
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
