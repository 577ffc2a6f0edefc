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
    const QByteArray png = encodePng(PlaceholderRows(picture), QThread::idealThreadCount());
    file.bytes = png.size();
    file.outcome = writeWholeFile(file.path, png);
    return file;
}

} // namespace

PlaceholderRun savePlaceholders(const std::vector<Placeholder> &pictures, const QString &destination,
                                const PlaceholderWritten &written)
{
    PlaceholderRun run;
    const auto folder = makeExportFolder(destination, QStringLiteral("placeholders"));
    if (folder) {
        run.folder = folder.value();
    } else {
        run.folder.path = folder.failure().subject;
        run.folderFailure = folder.failure();
    }
    for (const Placeholder &picture : pictures) {
        run.files.push_back(savePlaceholder(picture, run.folder.path));
        if (written)
            written(std::ssize(run.files), std::ssize(pictures));
    }
    return run;
}

} // namespace lumora
