// SPDX-License-Identifier: MIT
#include "TranslucentResampler.h"

#include "PlaneScaler.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace lumora
{

namespace
{

constexpr std::size_t channels = 4;
constexpr std::size_t alphaChannel = 3;
/// What makes 16 bits of 8, so that 255 becomes 65535.
constexpr unsigned to16Bits = 257;

/// Four planes of premultiplied 16-bit samples.
class Planes
{
public:
    explicit Planes(QSize size)
        : m_stride(planeStride(size.width(), SampleDepth::Bits16)), m_planeBytes(m_stride * size.height()),
          m_bytes(alignedBytes(static_cast<std::size_t>(m_planeBytes) * channels))
    {
    }
    std::uint8_t *plane(std::size_t channel) { return m_bytes.get() + static_cast<qsizetype>(channel) * m_planeBytes; }
    std::array<std::uint16_t *, channels> rows(int y)
    {
        std::array<std::uint16_t *, channels> result{};
        for (std::size_t channel = 0; channel < channels; ++channel)
            result[channel] = reinterpret_cast<std::uint16_t *>(plane(channel) + y * m_stride);
        return result;
    }

private:
    qsizetype m_stride;
    qsizetype m_planeBytes;
    AlignedBytes m_bytes;
};

void takeApart(const std::uint8_t *pixel, int width, const std::array<std::uint16_t *, channels> &rows)
{
    for (int x = 0; x < width; ++x, pixel += channels) {
        const unsigned alpha = pixel[alphaChannel];
        for (std::size_t channel = 0; channel < alphaChannel; ++channel)
            rows[channel][x] = static_cast<std::uint16_t>((pixel[channel] * alpha * to16Bits + 127) / 255);
        rows[alphaChannel][x] = static_cast<std::uint16_t>(alpha * to16Bits);
    }
}

void putTogether(const std::array<std::uint16_t *, channels> &rows, int width, std::uint8_t *pixel)
{
    for (int x = 0; x < width; ++x, pixel += channels) {
        const unsigned alpha = rows[alphaChannel][x];
        const unsigned alphaByte = (alpha + to16Bits / 2) / to16Bits;
        if (alphaByte == 0) {
            std::fill_n(pixel, channels, std::uint8_t{0});
            continue;
        }
        // The filter's overshoot may lift a colour above its alpha, which no colour can be.
        for (std::size_t channel = 0; channel < alphaChannel; ++channel) {
            const unsigned value = std::min<unsigned>(rows[channel][x], alpha);
            pixel[channel] = static_cast<std::uint8_t>((value * 255 + alpha / 2) / alpha);
        }
        pixel[alphaChannel] = static_cast<std::uint8_t>(alphaByte);
    }
}

} // namespace

QImage resampleTranslucent(const QImage &source, QSize size)
{
    Planes from(source.size());
    for (int y = 0; y < source.height(); ++y)
        takeApart(source.constScanLine(y), source.width(), from.rows(y));
    Planes to(size);
    const PlaneScaler scaler(source.size(), size, SampleDepth::Bits16);
    for (std::size_t channel = 0; channel < channels; ++channel) {
        if (!scaler.scale(from.plane(channel), to.plane(channel)))
            return {};
    }
    QImage result(size, QImage::Format_RGBA8888);
    if (result.isNull())
        return {};
    for (int y = 0; y < size.height(); ++y)
        putTogether(to.rows(y), size.width(), result.scanLine(y));
    return result;
}

} // namespace lumora
