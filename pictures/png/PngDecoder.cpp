// SPDX-License-Identifier: MIT
#include "PngDecoder.h"

#include "CodePoints.h"
#include "PngChunks.h"
#include "pictures/pixels/PictureMemory.h"

#include <QColorSpace>
#include <QSize>

#include <png.h>

#include <csetjmp>
#include <cstring>
#include <vector>

namespace lumora
{

using namespace Qt::StringLiterals;

namespace
{

/// Where libpng reads from.
struct Source
{
    const QByteArray &bytes;
    qsizetype at = 0;
};

void readFromSource(png_structp png, png_bytep destination, png_size_t count)
{
    auto *source = static_cast<Source *>(png_get_io_ptr(png));
    if (static_cast<png_size_t>(source->bytes.size() - source->at) < count)
        png_error(png, "truncated");
    std::memcpy(destination, source->bytes.constData() + source->at, count);
    source->at += static_cast<qsizetype>(count);
}

// libpng's own handlers would write to stderr.
[[noreturn]] void fail(png_structp png, png_const_charp)
{
    png_longjmp(png, 1);
}

void ignoreWarning(png_structp, png_const_charp) {}

/// One decoding. libpng reports an error by a long jump over its caller, so the functions that begin with `setjmp` hold
/// no local that would have to be destroyed.
class Decoding
{
public:
    explicit Decoding(const QByteArray &file) : m_source{file}
    {
        m_png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, fail, ignoreWarning);
        m_info = m_png == nullptr ? nullptr : png_create_info_struct(m_png);
        if (m_info == nullptr)
            return;
        png_set_read_fn(m_png, &m_source, readFromSource);
        png_set_user_limits(m_png, 0x7FFFFFFF, 0x7FFFFFFF);
    }
    ~Decoding() { png_destroy_read_struct(&m_png, &m_info, nullptr); }
    Decoding(const Decoding &) = delete;
    Decoding &operator=(const Decoding &) = delete;

    /// Reads everything before the pixels.
    bool readHeader()
    {
        if (m_info == nullptr || setjmp(png_jmpbuf(m_png)) != 0)
            return false;
        png_read_info(m_png, m_info);
        return true;
    }

    QSize size() const
    {
        return {static_cast<int>(png_get_image_width(m_png, m_info)),
                static_cast<int>(png_get_image_height(m_png, m_info))};
    }

    QImage::Format format() const
    {
        return png_get_bit_depth(m_png, m_info) == 16 ? QImage::Format_RGBA64 : QImage::Format_RGBA8888;
    }

    /// Reads all rows into the places that the pointers name, then the rest of the file.
    bool readRows(png_bytep *rows)
    {
        if (setjmp(png_jmpbuf(m_png)) != 0)
            return false;
        png_set_expand(m_png);
        png_set_gray_to_rgb(m_png);
        png_set_add_alpha(m_png, 0xFFFF, PNG_FILLER_AFTER);
        if constexpr (Q_BYTE_ORDER == Q_LITTLE_ENDIAN)
            png_set_swap(m_png);
        png_set_interlace_handling(m_png);
        png_read_update_info(m_png, m_info);
        png_read_image(m_png, rows);
        png_read_end(m_png, m_info);
        return true;
    }

    /// What the iCCP, sRGB, gAMA and cHRM chunks name.
    QColorSpace colorSpace() const
    {
        png_charp name = nullptr;
        int compression = 0;
        png_bytep profile = nullptr;
        png_uint_32 length = 0;
        if (png_get_iCCP(m_png, m_info, &name, &compression, &profile, &length) != 0) {
            const auto embedded = QColorSpace::fromIccProfile(
                QByteArray(reinterpret_cast<const char *>(profile), static_cast<qsizetype>(length)));
            if (embedded.isValid())
                return embedded;
        }
        double gamma = 0;
        if (png_get_valid(m_png, m_info, PNG_INFO_sRGB) != 0 || png_get_gAMA(m_png, m_info, &gamma) == 0)
            return {};
        // Old files write sRGB as the inverse of 2.2; the two curves count as one.
        const bool usualGamma = std::abs(gamma - 0.45455) < 0.001;
        double wx = 0.3127;
        double wy = 0.3290;
        double rx = 0.64;
        double ry = 0.33;
        double gx = 0.30;
        double gy = 0.60;
        double bx = 0.15;
        double by = 0.06;
        png_get_cHRM(m_png, m_info, &wx, &wy, &rx, &ry, &gx, &gy, &bx, &by);
        const QColorSpace::TransferFunction curve =
            usualGamma ? QColorSpace::TransferFunction::SRgb : QColorSpace::TransferFunction::Gamma;
        const float exponent = usualGamma || gamma <= 0 ? 0.0F : static_cast<float>(1 / gamma);
        return QColorSpace(QPointF(wx, wy), QPointF(rx, ry), QPointF(gx, gy), QPointF(bx, by), curve, exponent);
    }

    QByteArray exif() const
    {
        png_uint_32 length = 0;
        png_bytep content = nullptr;
        if (png_get_eXIf_1(m_png, m_info, &length, &content) == 0)
            return {};
        return QByteArray(reinterpret_cast<const char *>(content), static_cast<qsizetype>(length));
    }

private:
    Source m_source;
    png_structp m_png = nullptr;
    png_infop m_info = nullptr;
};

} // namespace

Result<DecodedPng> decodePng(const QByteArray &file, const QString &name)
{
    const auto chunk = earlyPngChunk(file, "cICP");
    const auto points = chunk ? codePoints(*chunk) : std::nullopt;
    if (points && isHighDynamicRange(*points))
        return Failure{FailureCode::HighDynamicRange, name, "DETAIL_PQ_OR_HLG"};
    const Failure damaged{FailureCode::NotAPicture, name, "DETAIL_DAMAGED"};
    Decoding decoding(file);
    if (!decoding.readHeader())
        return damaged;
    DecodedPng result{newPicture(decoding.size(), decoding.format()), {}};
    std::vector<png_bytep> rows;
    rows.reserve(static_cast<std::size_t>(result.picture.height()));
    for (int y = 0; y < result.picture.height(); ++y)
        rows.push_back(result.picture.scanLine(y));
    if (!decoding.readRows(rows.data()))
        return damaged;
    const auto named = points ? colorSpaceOf(*points) : std::nullopt;
    result.picture.setColorSpace(named ? *named : decoding.colorSpace());
    result.exif = decoding.exif();
    return result;
}

} // namespace lumora
