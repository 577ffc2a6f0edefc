// SPDX-License-Identifier: MIT
#include "ColorPlanes.h"

#include <cstring>

namespace lumora
{

ColorPlanes::ColorPlanes(QSize size, int channels, SampleDepth depth)
    : m_size(size), m_channels(channels), m_depth(depth), m_stride(planeStride(size.width(), depth)),
      m_samples(alignedBytes(byteCount()))
{
}

ColorPlanes::ColorPlanes(const ColorPlanes &other) : ColorPlanes(other.m_size, other.m_channels, other.m_depth)
{
    std::memcpy(m_samples.get(), other.m_samples.get(), byteCount());
}

Result<std::unique_ptr<ColorPlanes>> ColorPlanes::scaledTo(QSize size) const
{
    const auto scaler = PlaneScaler::kept(m_size, size, m_depth);
    auto scaled = std::make_unique<ColorPlanes>(size, m_channels, m_depth);
    for (int channel = 0; channel < m_channels; ++channel) {
        if (const Outcome done = scaler->scale(bytes(channel, 0), scaled->bytes(channel, 0)); !done)
            return done.failure();
    }
    return scaled;
}

} // namespace lumora
