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
constexpr int channels = 4;

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

} // namespace

Resampler::Resampler(const QImage &source) : m_size(source.size())
{
    takeApart(premultiplied(source));
}

std::uint8_t *Resampler::plane(int channel)
{
    const auto start = reinterpret_cast<std::uintptr_t>(m_samples.data());
    const auto aligned = (start + alignment - 1) / alignment * alignment;
    return m_samples.data() + (aligned - start) + channel * m_stride * m_size.height();
}

const std::uint8_t *Resampler::plane(int channel) const
{
    return const_cast<Resampler *>(this)->plane(channel);
}

void Resampler::takeApart(const QImage &source)
{
    m_opaque = true;
    for (int y = 0; y < source.height() && m_opaque; ++y) {
        const std::uint8_t *pixel = source.constScanLine(y);
        std::uint8_t smallest = 255;
        for (int x = 0; x < source.width(); ++x)
            smallest = std::min(smallest, pixel[4 * x + 3]);
        m_opaque = smallest == 255;
    }
    m_stride = alignedStride(source.width());
    const int planes = m_opaque ? channels - 1 : channels;
    m_samples.resize(static_cast<std::size_t>(m_stride * source.height() * planes + alignment));
    for (int y = 0; y < source.height(); ++y) {
        const std::uint8_t *pixel = source.constScanLine(y);
        for (int channel = 0; channel < planes; ++channel) {
            std::uint8_t *row = plane(channel) + y * m_stride;
            for (int x = 0; x < source.width(); ++x)
                row[x] = pixel[4 * x + channel];
        }
    }
}

QImage Resampler::scaledTo(QSize size) const
{
    if (m_size.isEmpty() || size.isEmpty())
        return {};
    const int planes = m_opaque ? channels - 1 : channels;
    const qsizetype stride = alignedStride(size.width());
    const qsizetype planeBytes = stride * size.height();
    AlignedBytes scaled;
    if (size != m_size) {
        const Graph graph = lanczosGraph(m_size, size);
        std::size_t scratchBytes = 0;
        if (graph == nullptr || zimg_filter_graph_get_tmp_size(graph.get(), &scratchBytes) != ZIMG_ERROR_SUCCESS)
            return {};
        const AlignedBytes scratch = alignedBytes(scratchBytes);
        scaled = alignedBytes(static_cast<std::size_t>(planeBytes * planes));
        for (int channel = 0; channel < planes; ++channel) {
            const zimg_image_buffer_const from = readable(plane(channel), m_stride);
            const zimg_image_buffer to = writable(scaled.get() + channel * planeBytes, stride);
            if (zimg_filter_graph_process(graph.get(), &from, &to, scratch.get(), nullptr, nullptr, nullptr, nullptr) !=
                ZIMG_ERROR_SUCCESS)
                return {};
        }
    }
    QImage result(size, QImage::Format_RGBA8888_Premultiplied);
    if (result.isNull())
        return {};
    const auto row = [&](int channel, int y) {
        return scaled ? scaled.get() + channel * planeBytes + y * stride : plane(channel) + y * m_stride;
    };
    for (int y = 0; y < size.height(); ++y) {
        const std::uint8_t *red = row(0, y);
        const std::uint8_t *green = row(1, y);
        const std::uint8_t *blue = row(2, y);
        const std::uint8_t *alpha = m_opaque ? nullptr : row(3, y);
        std::uint8_t *pixel = result.scanLine(y);
        for (int x = 0; x < size.width(); ++x, pixel += 4) {
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

} // namespace lumora
