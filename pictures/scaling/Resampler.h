// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QSize>

#include <memory>
#include <mutex>

namespace lumora
{

class ColorPlanes;

/// Lanczos with three lobes, by libzimg on the premultiplied color planes, so that no color of a transparent pixel
/// bleeds into its neighbors, its ringing taken out by `clampRinging`. Takes the picture apart once; any number of
/// sizes may then be made from it, by several threads at a time.
class Resampler
{
public:
    /// Keeps a planar copy of the picture: 5 bytes a pixel (4 for an opaque one), and a third more once a small size
    /// was made. Of a straight picture with transparency it keeps twice as much, since bytes of premultiplied color
    /// cannot hold its faint colors.
    explicit Resampler(const QImage &source);
    ~Resampler();

    /// The picture stretched to `size` pixels, as `QImage::Format_RGBA8888_Premultiplied`. A size equal to the source's
    /// gives its pixels unchanged; an empty size, or an empty source, a null picture.
    QImage scaledTo(QSize size) const;

private:
    explicit Resampler(std::unique_ptr<ColorPlanes> planes);
    std::unique_ptr<ColorPlanes> planesOf(QSize size) const;

    std::unique_ptr<ColorPlanes> m_planes;
    mutable std::once_flag m_halved;
    mutable std::unique_ptr<Resampler> m_half;

    const Resampler &half() const;
};

/// One size of one picture: `Resampler(source).scaledTo(size)`.
QImage resample(const QImage &source, QSize size);

} // namespace lumora
