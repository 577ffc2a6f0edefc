// SPDX-License-Identifier: MIT
#include "WebPEncoder.h"

#include "foundation/MemoryLimit.h"
#include "pictures/pixels/SizeText.h"

#include <webp/encode.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// libwebp's picture and its output buffer; frees both.
struct Encoding
{
    WebPPicture picture = {};
    WebPMemoryWriter writer = {};

    Encoding()
    {
        WebPPictureInit(&picture);
        WebPMemoryWriterInit(&writer);
        picture.writer = WebPMemoryWrite;
        picture.custom_ptr = &writer;
    }
    ~Encoding()
    {
        WebPPictureFree(&picture);
        WebPMemoryWriterClear(&writer);
    }
    Encoding(const Encoding &) = delete;
    Encoding &operator=(const Encoding &) = delete;
};

WebPConfig configFor(const WebPOptions &options)
{
    WebPConfig config;
    WebPConfigInit(&config);
    if (options.quality) {
        config.quality = static_cast<float>(*options.quality);
    } else {
        // Level 6 of 0 to 9: libwebp's own balance between time and bytes.
        constexpr int level = 6;
        WebPConfigLosslessPreset(&config, level);
    }
    return config;
}

} // namespace

Result<QByteArray> encodeWebP(const QImage &picture, const WebPOptions &options, const QString &name)
{
    if (picture.isNull() || (options.quality && (*options.quality < 0 || *options.quality > 100)))
        return Failure{FailureCode::InvalidValue, name, {}};
    if (picture.width() > longestWebPEdge || picture.height() > longestWebPEdge)
        return Failure{FailureCode::TooLarge, name, pixelsDetail(picture.size())};
    const QImage straight = picture.convertToFormat(QImage::Format_RGBA8888);
    if (straight.isNull())
        return outOfMemory(name);
    const WebPConfig config = configFor(options);
    Encoding encoding;
    encoding.picture.use_argb = config.lossless;
    encoding.picture.width = straight.width();
    encoding.picture.height = straight.height();
    const bool encoded = WebPPictureImportRGBA(&encoding.picture, straight.constBits(),
                                               static_cast<int>(straight.bytesPerLine())) != 0 &&
                         WebPEncode(&config, &encoding.picture) != 0;
    if (!encoded)
        return Failure{FailureCode::TooLarge,
                       name,
                       {"DETAIL_WEBP_ERROR", {{"[NUMBER]", QString::number(encoding.picture.error_code)}}}};
    return QByteArray(reinterpret_cast<const char *>(encoding.writer.mem),
                      static_cast<qsizetype>(encoding.writer.size));
}

} // namespace lumora
