// SPDX-License-Identifier: MIT
#pragma once

#include "PlaneScaler.h"

#include <QSize>

#include <cstdint>
#include <memory>

namespace lumora
{

/// A picture as one plane of samples for each channel, the form in which it is scaled.
class ColorPlanes
{
public:
    /// `size` is not empty; the samples are not initialized. Throws `std::bad_alloc` if memory runs out.
    ColorPlanes(QSize size, int channels, SampleDepth depth);
    ColorPlanes(const ColorPlanes &other);
    ColorPlanes &operator=(const ColorPlanes &) = delete;
    ColorPlanes(ColorPlanes &&) = default;
    ~ColorPlanes() = default;

    QSize size() const { return m_size; }
    int channels() const { return m_channels; }
    SampleDepth depth() const { return m_depth; }

    /// One row of one channel; `Sample` has the width of the depth.
    template <typename Sample> Sample *row(int channel, int y) { return reinterpret_cast<Sample *>(bytes(channel, y)); }
    template <typename Sample> const Sample *row(int channel, int y) const
    {
        return reinterpret_cast<const Sample *>(bytes(channel, y));
    }

    /// The picture stretched to `size` by `PlaneScaler`, with its failures; never null.
    Result<std::unique_ptr<ColorPlanes>> scaledTo(QSize size) const;

private:
    std::size_t byteCount() const { return static_cast<std::size_t>(m_stride * m_size.height() * m_channels); }
    std::uint8_t *bytes(int channel, int y) const
    {
        return m_samples.get() + (qsizetype{channel} * m_size.height() + y) * m_stride;
    }

    QSize m_size;
    int m_channels;
    SampleDepth m_depth;
    qsizetype m_stride;
    AlignedBytes m_samples;
};

} // namespace lumora
