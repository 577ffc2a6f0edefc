// SPDX-License-Identifier: MIT
#include "Resampler.h"

#include "ColorPlanes.h"
#include "PicturePlanes.h"
#include "RingingClamp.h"
#include "pictures/pixels/PixelFormat.h"

#include <memory>
#include <utility>

namespace lumora
{

namespace
{

/// Small sizes are made from halves of the source; each halving is a Lanczos step. As long as the last step shrinks by
/// at least this factor, aliasing and sharpness differ from a single step only by rounding.
constexpr double smallestLastStep = 2.5;

/// The half itself is one of these sizes: it is kept, so that it is made only once.
bool isMadeFromHalf(QSize source, QSize size)
{
    const QSize half = source / 2;
    // An odd edge has no half whose pixels cover the source exactly.
    return half * 2 == source && (size == half || (size.width() * smallestLastStep <= half.width() &&
                                                   size.height() * smallestLastStep <= half.height()));
}

/// The picture in the format whose planes hold it without loss, 8 bits a sample where they do.
QImage ready(QImage picture)
{
    const bool multiplied = picture.pixelFormat().premultiplied() == QPixelFormat::Premultiplied;
    if (picture.isNull() || multiplied || !picture.hasAlphaChannel())
        return premultiplied(std::move(picture));
    picture.convertTo(QImage::Format_RGBA8888);
    // Without transparency both formats have the same bytes.
    if (isOpaque(picture))
        picture.reinterpretAsFormat(QImage::Format_RGBA8888_Premultiplied);
    return picture;
}

} // namespace

Resampler::Resampler(const QImage &source) : Resampler(takenApart(ready(source))) {}

Resampler::Resampler(std::unique_ptr<ColorPlanes> planes) : m_planes(std::move(planes)) {}

Resampler::~Resampler() = default;

std::unique_ptr<ColorPlanes> Resampler::planesOf(QSize size) const
{
    std::unique_ptr<ColorPlanes> scaled = m_planes->scaledTo(size);
    if (scaled != nullptr)
        clampRinging(*m_planes, *scaled);
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
    if (isMadeFromHalf(m_planes->size(), size))
        return half().scaledTo(size);
    const std::unique_ptr<ColorPlanes> scaled = planesOf(size);
    return scaled == nullptr ? QImage() : putTogether(*scaled);
}

QImage resample(const QImage &source, QSize size)
{
    return Resampler(source).scaledTo(size);
}

} // namespace lumora
