// SPDX-License-Identifier: MIT
#include "Resampler.h"

#include "PixelFormat.h"

#include <zimg.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <new>

namespace lumora
{

namespace
{

/// What libzimg asks of buffers and strides.
constexpr qsizetype alignment = 64;

qsizetype alignedStride(int width)
{
    return (width + alignment - 1) / alignment * alignment;
}

struct FreeAligned
{
    void operator()(void *memory) const { std::free(memory); }
};
using AlignedBytes = std::unique_ptr<std::uint8_t, FreeAligned>;

AlignedBytes alignedBytes(std::size_t count)
{
    const std::size_t rounded = (count + alignment - 1) / alignment * alignment;
    void *memory = std::aligned_alloc(alignment, std::max<std::size_t>(rounded, alignment));
    if (memory == nullptr)
        throw std::bad_alloc();
    return AlignedBytes(static_cast<std::uint8_t *>(memory));
}

struct FreeGraph
{
    void operator()(zimg_filter_graph *graph) const { zimg_filter_graph_free(graph); }
};
using Graph = std::unique_ptr<zimg_filter_graph, FreeGraph>;

zimg_image_format greyPlane(QSize size)
{
    zimg_image_format format;
    zimg_image_format_default(&format, ZIMG_API_VERSION);
    format.width = static_cast<unsigned>(size.width());
    format.height = static_cast<unsigned>(size.height());
    format.pixel_type = ZIMG_PIXEL_BYTE;
    format.pixel_range = ZIMG_RANGE_FULL;
    format.color_family = ZIMG_COLOR_GREY;
    return format;
}

Graph lanczosGraph(QSize from, QSize to)
{
    const zimg_image_format source = greyPlane(from);
    const zimg_image_format destination = greyPlane(to);
    zimg_graph_builder_params parameters;
    zimg_graph_builder_params_default(&parameters, ZIMG_API_VERSION);
    parameters.resample_filter = ZIMG_RESIZE_LANCZOS;
    parameters.filter_param_a = 3;
    parameters.dither_type = ZIMG_DITHER_NONE;
    return Graph(zimg_filter_graph_build(&source, &destination, &parameters));
}

zimg_image_buffer_const readable(const std::uint8_t *samples, qsizetype stride)
{
    zimg_image_buffer_const buffer{};
    buffer.version = ZIMG_API_VERSION;
    buffer.plane[0] = {samples, static_cast<ptrdiff_t>(stride), ZIMG_BUFFER_MAX};
    return buffer;
}

zimg_image_buffer writable(std::uint8_t *samples, qsizetype stride)
{
    zimg_image_buffer buffer{};
    buffer.version = ZIMG_API_VERSION;
    buffer.plane[0] = {samples, static_cast<ptrdiff_t>(stride), ZIMG_BUFFER_MAX};
    return buffer;
}

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
        : size(pixels), count(withAlpha ? 4 : 3), stride(alignedStride(pixels.width())),
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
    const Graph graph = lanczosGraph(size, wanted);
    std::size_t scratchBytes = 0;
    if (graph == nullptr || zimg_filter_graph_get_tmp_size(graph.get(), &scratchBytes) != ZIMG_ERROR_SUCCESS)
        return nullptr;
    const AlignedBytes scratch = alignedBytes(scratchBytes);
    auto scaled = std::make_unique<Planes>(wanted, !isOpaque());
    for (int channel = 0; channel < count; ++channel) {
        const zimg_image_buffer_const from = readable(row(channel, 0), stride);
        const zimg_image_buffer to = writable(scaled->row(channel, 0), scaled->stride);
        if (zimg_filter_graph_process(graph.get(), &from, &to, scratch.get(), nullptr, nullptr, nullptr, nullptr) !=
            ZIMG_ERROR_SUCCESS)
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

} // namespace lumora
