// SPDX-License-Identifier: MIT
#include "PlaceholderExport.h"

#include "PlaceholderSizes.h"
#include "foundation/WholeFile.h"
#include "pictures/png/PngEncoder.h"
#include "pictures/png/PngRows.h"

#include <QThread>

#include <utility>

namespace lumora
{

namespace
{

class PlaceholderRows final : public PngRows
{
public:
    explicit PlaceholderRows(const Placeholder &placeholder) : m_placeholder(placeholder) {}

    QSize size() const override { return m_placeholder.size(); }
    void readRow(int row, std::span<std::uint8_t> rgba) const override { m_placeholder.readRow(row, rgba); }

private:
    const Placeholder &m_placeholder;
};

PlaceholderFile savePlaceholder(const Placeholder &picture, const QString &folder)
{
    PlaceholderFile file;
    file.size = picture.size();
    file.path = folder + u'/' + placeholderFileName(file.size);
    const Result<QByteArray> png = encodePng(PlaceholderRows(picture), QThread::idealThreadCount(), file.path);
    file.outcome = png ? writeWholeFile(file.path, png.value()) : png.failure();
    file.bytes = file.outcome ? png.value().size() : 0;
    return file;
}

} // namespace

PlaceholderRun savePlaceholders(const std::vector<Placeholder> &pictures, const QString &destination,
                                const PlaceholderWritten &written)
{
    const auto folder = makeExportFolder(destination, QStringLiteral("placeholders"));
    if (folder)
        return savePlaceholders(pictures, folder.value(), written);
    PlaceholderRun run = savePlaceholders(pictures, ExportFolder{folder.failure().subject, false}, written);
    run.folderFailure = folder.failure();
    return run;
}

PlaceholderRun savePlaceholders(const std::vector<Placeholder> &pictures, const ExportFolder &folder,
                                const PlaceholderWritten &written)
{
    PlaceholderRun run;
    run.folder = folder;
    for (const Placeholder &picture : pictures) {
        run.files.push_back(savePlaceholder(picture, run.folder.path));
        if (written && !written(std::ssize(run.files), std::ssize(pictures)))
            break;
    }
    return run;
}

} // namespace lumora
