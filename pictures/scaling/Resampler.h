// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/LazyValue.h"
#include "foundation/Result.h"

#include <QImage>
#include <QSize>
#include <QString>

#include <memory>

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
    /// color cannot hold the colors of nearly transparent pixels. `name` is the subject of a failure.
    Resampler(const QImage &source, const QString &name);
    ~Resampler();

    /// The picture stretched to `size` pixels, as `QImage::Format_RGBA8888_Premultiplied`. The source's own size gives
    /// its pixels unchanged. Fails with `InvalidValue` for an empty size and for a null source, with `TooLarge` if
    /// memory runs out or libzimg refuses the size.
    Result<QImage> scaledTo(QSize size) const;

private:
    using Planes = Result<std::unique_ptr<ColorPlanes>>;

    Resampler(Planes planes, const QString &name);
    Planes planesOf(QSize size) const;
    Result<QImage> pictureOf(QSize size) const;
    const Resampler &half() const;

    QString m_name;
    Planes m_planes; ///< those of the source, or why there are none
    mutable LazyValue<std::unique_ptr<Resampler>> m_half;
};

/// One size of one picture: `Resampler(source, name).scaledTo(size)`.
Result<QImage> resample(const QImage &source, QSize size, const QString &name);

} // namespace lumora
