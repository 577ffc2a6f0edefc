// SPDX-License-Identifier: MIT
#include "ScreenshotFacts.h"

#include "foundation/WholeFile.h"
#include "pictures/PictureFormat.h"
#include "pictures/PictureReader.h"
#include "pictures/png/PngChunks.h"
#include "pictures/png/PngHeader.h"

#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>
#include <map>
#include <optional>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int deepestFolder = 32;

void readPng(const QByteArray &bytes, ScreenshotFacts &facts)
{
    const std::optional<PngHeader> header = pngHeader(bytes);
    if (!header)
        return;
    constexpr int alphaBit = 4;
    constexpr int colorBit = 2;
    constexpr int paletteType = 3;
    facts.hasAlpha = (header->colorType & alphaBit) != 0;
    facts.isRgb = (header->colorType & colorBit) != 0;
    facts.hasPalette = header->colorType == paletteType;
    facts.isDeep = header->bitDepth > 8;
    // One transparent color, or a palette with opacities.
    if (const auto chunks = readPngChunks(bytes)) {
        facts.hasAlpha = facts.hasAlpha || std::ranges::any_of(*chunks, [](const PngChunkView &chunk) {
                             return chunk.type == QByteArrayView("tRNS");
                         });
    }
}

/// The number of components in a JPEG file's frame; 0 if no frame is found.
int jpegComponents(const QByteArray &bytes)
{
    const auto byteAt = [&bytes](qsizetype at) { return at < bytes.size() ? static_cast<uchar>(bytes[at]) : 0; };
    qsizetype at = 2;
    while (at + 4 <= bytes.size() && byteAt(at) == 0xff) {
        const int marker = byteAt(at + 1);
        const bool isFrame = marker >= 0xc0 && marker <= 0xcf && marker != 0xc4 && marker != 0xc8 && marker != 0xcc;
        if (isFrame)
            return byteAt(at + 9);
        at += marker == 0xff ? 1 : 2 + byteAt(at + 2) * 256 + byteAt(at + 3);
    }
    return 0;
}

bool isPictureName(const QString &name)
{
    static const QStringList extensions = {u"png"_s, u"jpg"_s,  u"jpeg"_s, u"webp"_s, u"gif"_s,
                                           u"tif"_s, u"tiff"_s, u"bmp"_s,  u"heic"_s};
    return extensions.contains(QFileInfo(name).suffix().toLower());
}

/// Adds the pictures in the folder and below, until there are too many.
void addFolder(const QDir &folder, const std::stop_token &stop, std::map<QString, QString> &files)
{
    for (QDirIterator entries(folder.path(), QDir::Files, QDirIterator::Subdirectories); entries.hasNext();) {
        if (files.size() > mostScreenshots || stop.stop_requested())
            return;
        const QString path = entries.next();
        const QString relative = folder.relativeFilePath(path);
        const QStringList parts = relative.split(u'/');
        const bool hidden = std::ranges::any_of(parts, [](const QString &part) { return part.startsWith(u'.'); });
        if (!hidden && parts.size() <= deepestFolder && isPictureName(relative))
            files.emplace(relative, path);
    }
}

} // namespace

ScreenshotFacts screenshotFacts(const QByteArray &bytes, const QString &path)
{
    ScreenshotFacts facts;
    facts.path = path;
    const Result<QSize> size = storedPixelSize(bytes, path);
    if (!size || !isWhole(bytes))
        return facts;
    facts.format = pictureFormat(bytes);
    facts.size = size.value();
    if (facts.format == "png")
        readPng(bytes, facts);
    else if (facts.format == "jpeg")
        facts.isRgb = jpegComponents(bytes) == 3;
    return facts;
}

Result<std::vector<ScreenshotFacts>> readScreenshots(const QString &folder)
{
    const QFileInfo root(folder);
    if (!root.exists())
        return Failure{FailureCode::NotFound, folder, {}};
    if (!root.isDir())
        return Failure{FailureCode::NotAFolder, folder, {}};
    return readScreenshots(QStringList{folder});
}

Result<std::vector<ScreenshotFacts>> readScreenshots(const QStringList &dropped, const std::stop_token &stop,
                                                     const ReadFile &read)
{
    std::map<QString, QString> files; // by the path that is shown
    const auto isFull = [&files] { return files.size() > mostScreenshots; };
    for (const QString &path : dropped) {
        const QFileInfo file(path);
        if (!file.exists())
            return Failure{FailureCode::NotFound, path, {}};
        if (file.isDir())
            addFolder(QDir(file.absoluteFilePath()), stop, files);
        else
            files.emplace(file.absoluteDir().dirName() + u'/' + file.fileName(), file.absoluteFilePath());
        if (isFull())
            return Failure{
                FailureCode::TooLarge, path, {"DETAIL_MORE_PICTURES", {{"[COUNT]", QString::number(mostScreenshots)}}}};
    }
    std::vector<ScreenshotFacts> all;
    for (const auto &[shown, path] : files) {
        if (stop.stop_requested())
            break;
        const Result<QByteArray> bytes = read(path, largestPictureFile);
        all.push_back(screenshotFacts(bytes ? bytes.value() : QByteArray(), shown));
    }
    return all;
}

} // namespace lumora
