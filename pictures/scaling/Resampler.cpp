// SPDX-License-Identifier: MIT
#include "Resampler.h"

#include "ColorPlanes.h"
#include "PicturePlanes.h"
#include "RingingClamp.h"
#include "foundation/MemoryLimit.h"
#include "pictures/pixels/PictureMemory.h"
#include "pictures/pixels/PixelFormat.h"
#include "pictures/pixels/SizeText.h"

#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

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
    if (multiplied || !picture.hasAlphaChannel())
        return premultiplied(std::move(picture));
    picture = withPixels(std::move(picture).convertToFormat(QImage::Format_RGBA8888));
    // Without transparency both formats have the same bytes.
    if (isOpaque(picture))
        picture.reinterpretAsFormat(QImage::Format_RGBA8888_Premultiplied);
    return picture;
}

Result<std::unique_ptr<ColorPlanes>> planesOfSource(const QImage &source, const QString &name)
{
    if (source.isNull())
        return Failure{FailureCode::InvalidValue, name, "DETAIL_EMPTY_PICTURE"};
    return withinMemory(name, [&]() -> Result<std::unique_ptr<ColorPlanes>> { return takenApart(ready(source)); });
}

} // namespace

Resampler::Resampler(const QImage &source, const QString &name) : Resampler(planesOfSource(source, name), name) {}

Resampler::Resampler(Planes planes, const QString &name) : m_name(name), m_planes(std::move(planes)) {}

Resampler::~Resampler() = default;

Resampler::Planes Resampler::planesOf(QSize size) const
{
    Planes scaled = m_planes.value()->scaledTo(size);
    if (!scaled)
        return Failure{scaled.failure().code, m_name, scaled.failure().detail};
    clampRinging(*m_planes.value(), *scaled.value());
    return scaled;
}

const Resampler &Resampler::half() const
{
    return *m_half.get(
        [this] { return std::unique_ptr<Resampler>(new Resampler(planesOf(m_planes.value()->size() / 2), m_name)); });
}

Result<QImage> Resampler::pictureOf(QSize size) const
{
    const ColorPlanes &planes = *m_planes.value();
    if (size == planes.size())
        return putTogether(planes);
    if (isMadeFromHalf(planes.size(), size))
        return half().scaledTo(size);
    const Planes scaled = planesOf(size);
    if (!scaled)
        return scaled.failure();
    return putTogether(*scaled.value());
}

Result<QImage> Resampler::scaledTo(QSize size) const
{
    if (!m_planes)
        return m_planes.failure();
    if (size.isEmpty())
        return Failure{FailureCode::InvalidValue, m_name, pixelsDetail(size)};
    return withinMemory(m_name, [&] { return pictureOf(size); });
}

Result<QImage> resample(const QImage &source, QSize size, const QString &name)
{
    return Resampler(source, name).scaledTo(size);
}

} // namespace lumora
