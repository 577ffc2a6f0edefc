// SPDX-License-Identifier: MIT
#include "BundleImages.h"

#include "foundation/WholeFile.h"
#include "pictures/PictureOperations.h"
#include "pictures/PictureReader.h"
#include "pictures/png/ApplePngDecoder.h"
#include "pictures/png/PngHeader.h"

#include <QFile>

#include <array>

namespace lumora
{

namespace
{

/// The largest file and picture that are looked into; what an icon takes in practice is a tenth of it.
constexpr qint64 largestImageFile = 16 << 20;
constexpr qint64 largestIconArea = 2 << 20;

constexpr std::array iconHeights = {512, 144, 120, 152, 1024, 114};

constexpr double firstFlatVersion = 7.0;
constexpr int corners6 = 1;
constexpr int corners7 = 2;

Result<QImage> decoded(const QString &path)
{
    const auto bytes = readWholeFile(path, largestImageFile);
    if (!bytes)
        return bytes.failure();
    const auto png = pngHeader(bytes.value());
    if (png && png->appleOptimized)
        return decodeApplePng(bytes.value(), path, largestIconArea);
    return readPicture(bytes.value(), path);
}

bool mayBeAppIcon(QSize size)
{
    return std::find(iconHeights.begin(), iconHeights.end(), size.height()) != iconHeights.end() &&
           qint64{size.width()} * size.height() <= largestIconArea;
}

} // namespace

QSize pictureSize(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return {};
    const QByteArray start = file.read(pngHeaderBytes);
    if (const auto png = pngHeader(start))
        return png->size;
    if (file.size() > largestImageFile)
        return {};
    const auto size = storedPixelSize(path);
    return size ? size.value() : QSize();
}

QList<QSize> pictureSizes(const QString &folder, const QStringList &names)
{
    QList<QSize> sizes;
    sizes.reserve(names.size());
    for (const QString &name : names)
        sizes += pictureSize(folder + u'/' + name);
    return sizes;
}

QImage appIcon(const QString &folder, const QStringList &candidates, const QList<QSize> &sizes, double minimumOS)
{
    for (qsizetype i = 0; i < candidates.size() && i < sizes.size(); ++i) {
        if (!mayBeAppIcon(sizes[i]))
            continue;
        const auto picture = decoded(folder + u'/' + candidates[i]);
        if (picture)
            return resizeImage(picture.value(), appIconSize, minimumOS >= firstFlatVersion ? corners7 : corners6);
    }
    return {};
}

} // namespace lumora
