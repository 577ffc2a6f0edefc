// SPDX-License-Identifier: MIT
#include "LabeledExport.h"

#include "foundation/MemoryLimit.h"
#include "foundation/WholeFile.h"
#include "pictures/PictureReader.h"
#include "pictures/pixels/SizeText.h"
#include "pictures/png/PngEncoder.h"
#include "pictures/png/PngRows.h"
#include "pictures/webp/WebPEncoder.h"
#include "placeholders/LabelFont.h"

#include <QThread>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

class LabeledRows final : public PngRows
{
public:
    explicit LabeledRows(const LabeledPicture &picture) : m_picture(picture) {}

    QSize size() const override { return m_picture.size().pixels(); }
    void readRow(int row, std::span<std::uint8_t> rgba) const override { m_picture.readRow(row, rgba); }

private:
    const LabeledPicture &m_picture;
};

Result<QByteArray> encoded(const LabeledPicture &picture, const LabeledOptions &options, const QString &path)
{
    const QSize pixels = picture.size().pixels();
    switch (options.format) {
    case LabeledFormat::Png:
        // Stores refuse screenshots with an alpha channel even where it is opaque.
        if (picture.isOpaque())
            return encodeOpaquePng(LabeledRows(picture), QThread::idealThreadCount(), path);
        return encodePng(LabeledRows(picture), QThread::idealThreadCount(), path);
    case LabeledFormat::Svg:
        return picture.toSvg();
    case LabeledFormat::WebP:
        break;
    }
    // The format's writer needs the whole picture.
    if (qint64{pixels.width()} * pixels.height() > largestPictureArea)
        return Failure{FailureCode::TooLarge, path, pixelsDetail(pixels)};
    const QImage whole = picture.toImage();
    return whole.isNull() ? outOfMemory(path) : encodeWebP(whole, {options.webpQuality}, path);
}

} // namespace

QString labeledFileName(const ListedSize &size, LabeledFormat format)
{
    const QString extension = format == LabeledFormat::Png    ? u"png"_s
                              : format == LabeledFormat::WebP ? u"webp"_s
                                                              : u"svg"_s;
    return u"placeholder_"_s + sizeText(size) + u'.' + extension;
}

PlaceholderRun saveLabeledPictures(const std::vector<ListedSize> &sizes, const PictureLook &look,
                                   const LabeledOptions &options, const QString &destination,
                                   const PlaceholderWritten &written)
{
    const auto folder = makeExportFolder(destination, u"placeholders"_s);
    if (folder)
        return saveLabeledPictures(sizes, look, options, folder.value(), written);
    PlaceholderRun run =
        saveLabeledPictures(sizes, look, options, ExportFolder{folder.failure().subject, false}, written);
    run.folderFailure = folder.failure();
    return run;
}

PlaceholderRun saveLabeledPictures(const std::vector<ListedSize> &sizes, const PictureLook &look,
                                   const LabeledOptions &options, const ExportFolder &folder,
                                   const PlaceholderWritten &written)
{
    PlaceholderRun run;
    run.folder = folder;
    const LabelFont font;
    for (const ListedSize &size : sizes) {
        PlaceholderFile file;
        file.size = size.pixels();
        file.path = run.folder.path + u'/' + labeledFileName(size, options.format);
        const Result<QByteArray> bytes = encoded(LabeledPicture(size, look, font), options, file.path);
        file.outcome = bytes ? writeWholeFile(file.path, bytes.value()) : bytes.failure();
        file.bytes = file.outcome ? bytes.value().size() : 0;
        run.files.push_back(file);
        if (written && !written(std::ssize(run.files), std::ssize(sizes)))
            break;
    }
    return run;
}

} // namespace lumora
