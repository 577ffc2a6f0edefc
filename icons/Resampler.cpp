// SPDX-License-Identifier: MIT
#include "Resampler.h"

#include "PixelFormat.h"
#include "PlaneScaler.h"
#include "TranslucentResampler.h"

#include <algorithm>

namespace lumora
{

namespace
{

constexpr int channels = 4;

bool isOpaque(const QImage &picture)
{
    const int width = picture.width();
    std::uint8_t smallest = 255;
    for (int y = 0; y < picture.height() && smallest == 255; ++y) {
        const std::uint8_t *pixel = picture.constScanLine(y);
        for (int x = 0; x < width; ++x)
            smallest = std::min(smallest, pixel[4 * x + 3]);
    }
    return smallest == 255;
}

} // namespace

Resampler::Resampler(const QImage &source) : m_size(source.size())
{
    takeApart(premultiplied(source));
}

std::uint8_t *Resampler::plane(int channel)
{
    const auto start = reinterpret_cast<std::uintptr_t>(m_samples.data());
    const auto aligned = (start + planeAlignment - 1) / planeAlignment * planeAlignment;
    return m_samples.data() + (aligned - start) + channel * m_stride * m_size.height();
}

const std::uint8_t *Resampler::plane(int channel) const
{
    return const_cast<Resampler *>(this)->plane(channel);
}

void Resampler::takeApart(const QImage &source)
{
    m_opaque = isOpaque(source);
    m_stride = planeStride(source.width(), SampleDepth::Bits8);
    const int planes = m_opaque ? channels - 1 : channels;
    m_samples.resize(static_cast<std::size_t>(m_stride * source.height() * planes + planeAlignment));
    const int width = source.width();
    for (int y = 0; y < source.height(); ++y) {
        const std::uint8_t *pixel = source.constScanLine(y);
        for (int channel = 0; channel < planes; ++channel) {
            std::uint8_t *row = plane(channel) + y * m_stride;
            for (int x = 0; x < width; ++x)
                row[x] = pixel[4 * x + channel];
        }
    }
}

QImage Resampler::scaledTo(QSize size) const
{
    if (m_size.isEmpty() || size.isEmpty())
        return {};
    const int planes = m_opaque ? channels - 1 : channels;
    const qsizetype stride = planeStride(size.width(), SampleDepth::Bits8);
    const qsizetype planeBytes = stride * size.height();
    AlignedBytes scaled;
    if (size != m_size) {
        const PlaneScaler scaler(m_size, size, SampleDepth::Bits8);
        scaled = alignedBytes(static_cast<std::size_t>(planeBytes * planes));
        for (int channel = 0; channel < planes; ++channel) {
            if (!scaler.scale(plane(channel), scaled.get() + channel * planeBytes))
                return {};
        }
    }
    QImage result(size, QImage::Format_RGBA8888_Premultiplied);
    if (result.isNull())
        return {};
    const auto row = [&](int channel, int y) {
        return scaled ? scaled.get() + channel * planeBytes + y * stride : plane(channel) + y * m_stride;
    };
    const int width = size.width();
    for (int y = 0; y < size.height(); ++y) {
        const std::uint8_t *red = row(0, y);
        const std::uint8_t *green = row(1, y);
        const std::uint8_t *blue = row(2, y);
        const std::uint8_t *alpha = m_opaque ? nullptr : row(3, y);
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
