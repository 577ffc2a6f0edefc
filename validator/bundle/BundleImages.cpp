// SPDX-License-Identifier: MIT
#include "BundleImages.h"

#include "pictures/PictureOperations.h"
#include "pictures/PictureReader.h"
#include "pictures/png/ApplePngDecoder.h"
#include "pictures/png/PngHeader.h"
#include "validator/archive/PackageSource.h"

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// The largest file and picture that are read; real icons need a tenth of that.
constexpr qint64 largestImageFile = 16 << 20;
constexpr qint64 largestIconArea = 2 << 20;

constexpr std::array iconHeights = {512, 144, 120, 152, 1024, 114};

/// Files whose size is looked at for the large picture.
constexpr qsizetype mostLargeIcons = 200;

constexpr double firstFlatVersion = 7.0;

Result<QImage> decoded(const PackageSource &source, const QString &path)
{
    const auto bytes = source.read(path, largestImageFile);
    if (!bytes)
        return bytes.failure();
    const auto png = pngHeader(bytes.value());
    if (png && png->appleOptimized)
        return decodeApplePng(bytes.value(), path, largestIconArea);
    return readPicture(bytes.value(), path);
}

bool mayBeAppIcon(QSize size, int smallestHeight)
{
    return std::find(iconHeights.begin(), iconHeights.end(), size.height()) != iconHeights.end() &&
           size.height() >= smallestHeight && qint64{size.width()} * size.height() <= largestIconArea;
}

} // namespace

QSize pictureSize(const PackageSource &source, const QString &path)
{
    const auto start = source.readStart(path, pngHeaderBytes);
    if (!start)
        return {};
    if (const auto png = pngHeader(start.value()))
        return png->size;
    const auto bytes = source.read(path, largestImageFile);
    const auto size = bytes ? storedPixelSize(bytes.value(), path) : Result<QSize>(QSize());
    return size ? size.value() : QSize();
}

QList<QSize> pictureSizes(const PackageSource &source, const QString &folder, const QStringList &names)
{
    QList<QSize> sizes;
    sizes.reserve(names.size());
    for (const QString &name : names)
        sizes += pictureSize(source, folder + u'/' + name);
    return sizes;
}

QImage largeIcon(const PackageSource &source, const QString &folder)
{
    QStringList candidates{u"iTunesArtwork@2x"_s, u"iTunesArtwork"_s};
    for (const QString &name : source.names(folder)) {
        if (candidates.size() < mostLargeIcons && name.endsWith(u".png", Qt::CaseInsensitive))
            candidates += folder + u'/' + name;
    }
    for (const QString &path : std::as_const(candidates)) {
        if (source.find(path) == nullptr || pictureSize(source, path) != QSize(largeIconSize, largeIconSize))
            continue;
        if (const auto picture = decoded(source, path))
            return picture.value();
    }
    return {};
}

QImage appIcon(const PackageSource &source, const QString &folder, const QStringList &candidates,
               const QList<QSize> &sizes, double minimumOS, int scale)
{
    const CornerMode corners = minimumOS >= firstFlatVersion ? CornerMode::Ios7 : CornerMode::Ios6;
    const int edge = appIconSize * scale;
    for (const int smallestHeight : scale > 1 ? QList<int>{edge, 0} : QList<int>{0}) {
        for (qsizetype i = 0; i < candidates.size() && i < sizes.size(); ++i) {
            if (!mayBeAppIcon(sizes[i], smallestHeight))
                continue;
            const QString path = folder + u'/' + candidates[i];
            const auto picture = decoded(source, path);
            const auto icon = picture ? squarePicture(picture.value(), edge, corners, path) : picture.failure();
            if (icon)
                return icon.value();
        }
    }
    return {};
}

} // namespace lumora
