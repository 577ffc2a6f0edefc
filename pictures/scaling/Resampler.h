// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QSize>

#include <memory>
#include <mutex>

namespace lumora
{

class ColorPlanes;

/// Resamples by Lanczos with three lobes (libzimg) and removes its ringing by `clampRinging`. It works on premultiplied
/// color planes, so that the color of a transparent pixel does not bleed into its neighbors. The picture is split into
/// planes once; then several threads may make any number of sizes from it.
class Resampler
{
public:
    /// Keeps a planar copy of the picture: 5 bytes a pixel (4 for an opaque picture), and a third more once a small
    /// size was made. For a straight picture with transparency it keeps twice as much, since 8 bits of premultiplied
    /// color cannot hold the colors of nearly transparent pixels.
    explicit Resampler(const QImage &source);
    ~Resampler();

    /// The picture stretched to `size` pixels, as `QImage::Format_RGBA8888_Premultiplied`. The source's own size gives
    /// its pixels unchanged; an empty size or an empty source gives a null picture.
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
