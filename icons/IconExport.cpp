// SPDX-License-Identifier: MIT
#include "IconExport.h"

#include "IconsetPacker.h"
#include "RenderedIcons.h"
#include "foundation/Log.h"
#include "foundation/WholeFile.h"
#include "pictures/PictureOperations.h"
#include "pictures/png/PngEncoder.h"

#include <QFileInfo>

#include <memory>
#include <tuple>
#include <vector>

namespace lumora
{

namespace
{

/// Makes the new folder of a run; the run continues even without it.
void beginExport(IconExport &result, const QString &savePath)
{
    const auto folder = makeExportFolder(savePath, QStringLiteral("icons"));
    if (folder) {
        result.folder = folder.value();
    } else {
        result.folder.path = folder.failure().subject;
        result.folderFailure = folder.failure();
    }
}

/// Makes a sub-folder in the run's folder if it does not exist; logs a failure.
std::optional<Failure> makeSubfolder(const QString &path)
{
    const Outcome made = createFolder(path);
    if (made || QFileInfo(path).isDir())
        return std::nullopt;
    logLine(QStringLiteral("CreateError: ") + made.failure().detail.words());
    return made.failure();
}

QString filePath(const QString &folder, const IconEntry &icon)
{
    return folder + u'/' + QLatin1StringView(icon.name);
}

/// Writes the picture to the file's path and notes there what came of it.
void writeIcon(const Result<QByteArray> &png, IconFile &file)
{
    const Outcome written = png ? writeWholeFile(file.path, png.value())
                                : Failure{FailureCode::CannotWrite, file.path, png.failure().detail};
    if (written)
        file.bytes = png.value().size();
    else
        file.failure = written.failure();
}

/// One run over the platforms.
class PlatformRun
{
public:
    explicit PlatformRun(const PlatformIconsRequest &request) : m_request(request), m_pictures(request.icon) {}

    IconExport run()
    {
        if (m_request.folder)
            m_result.folder = *m_request.folder;
        else
            beginExport(m_result, m_request.savePath);
        for (const PlatformIcons &platform : iconPlatforms) {
            if (isExpected(platform))
                prepare(platform);
        }
        for (m_next = 0; m_next < iconPlatforms.size() && !m_result.isStopped;) {
            const PlatformIcons &platform = iconPlatforms[m_next++];
            if (!m_request.isChosen || !m_request.isChosen(platform))
                continue;
            logLine(QLatin1StringView(platform.logLine));
            exportPlatform(platform);
        }
        return std::move(m_result);
    }

private:
    bool isExpected(const PlatformIcons &platform) const { return m_request.expected.contains(platform.platform); }

    void prepare(const PlatformIcons &platform)
    {
        std::vector<int> sizes;
        for (const IconEntry &icon : platform.icons)
            sizes.push_back(icon.size);
        m_pictures.prepare(sizes);
    }

    void exportPlatform(const PlatformIcons &platform)
    {
        prepare(platform);
        QString folder = m_result.folder.path + QLatin1StringView(platform.folderSuffix);
        if (platform.platform == IconPlatform::Mac) {
            // Failures of these two show in the pictures that cannot be written.
            std::ignore = createFolder(folder);
            folder += QLatin1StringView(iconsetSuffix);
            std::ignore = createFolder(folder);
            writeIcons(platform, folder);
            if (!m_result.isStopped)
                generateMacIcon(folder);
        } else if (const std::optional<Failure> failure = makeSubfolder(folder)) {
            for (const IconEntry &icon : platform.icons)
                m_result.files.append({filePath(folder, icon), icon.size, 0, failure});
        } else {
            writeIcons(platform, folder);
        }
    }

    void writeIcons(const PlatformIcons &platform, const QString &folder)
    {
        int stillToWrite = static_cast<int>(platform.icons.size());
        for (const IconEntry &icon : platform.icons) {
            m_result.isStopped = m_request.isStopped && m_request.isStopped();
            if (m_result.isStopped)
                return;
            IconFile file{filePath(folder, icon), icon.size, 0, std::nullopt};
            reportProgress(file.path, stillToWrite--);
            writeIcon(m_pictures.png(icon.size), file);
            m_result.files.append(file);
        }
    }

    void reportProgress(const QString &path, int stillToWrite) const
    {
        if (!m_request.progress)
            return;
        int count = static_cast<int>(m_result.files.size()) + stillToWrite;
        for (std::size_t later = m_next; later < iconPlatforms.size(); ++later) {
            if (isExpected(iconPlatforms[later]))
                count += static_cast<int>(iconPlatforms[later].icons.size());
        }
        m_request.progress({static_cast<int>(m_result.files.size()) + 1, count, path});
    }

    void generateMacIcon(const QString &iconsetPath)
    {
        logLine(QStringLiteral("iconsset: ") + iconsetPath);
        const std::unique_ptr<IconsetPacker> system = m_request.packer == nullptr ? systemIconsetPacker() : nullptr;
        const IconsetPacker &packer = m_request.packer == nullptr ? *system : *m_request.packer;
        const Result<QString> packed = packer.pack(iconsetPath);
        if (packed)
            m_result.icns = packed.value();
        else
            m_result.icnsFailure = packed.failure();
    }

    const PlatformIconsRequest &m_request;
    RenderedIcons m_pictures;
    IconExport m_result;
    std::size_t m_next = 0; ///< the first platform that was not exported yet
};

} // namespace

QList<Failure> IconExport::failures() const
{
    QList<Failure> all;
    if (folderFailure)
        all << *folderFailure;
    for (const IconFile &file : files) {
        if (file.failure)
            all << *file.failure;
    }
    if (icnsFailure)
        all << *icnsFailure;
    return all;
}

IconExport generatePlatformIcons(const PlatformIconsRequest &request)
{
    return PlatformRun(request).run();
}

Result<QByteArray> customIconFile(const QImage &icon, int customIconSize, CornerMode cornerMode, const QString &name)
{
    const Result<QImage> picture = squarePicture(icon, customIconSize, cornerMode, name);
    return picture ? encodePng(picture.value(), name) : picture.failure();
}

IconFile writeCustomIcon(const QImage &icon, int customIconSize, CornerMode cornerMode, const QString &path)
{
    IconFile file{path, customIconSize, 0, std::nullopt};
    writeIcon(customIconFile(icon, customIconSize, cornerMode, path), file);
    return file;
}

IconExport generateCustomIcon(const CustomIconRequest &request)
{
    IconExport result;
    beginExport(result, request.savePath);
    const QString folder = result.folder.path + QLatin1StringView(customFolderSuffix);
    const QString path = folder + customIconName(request.customIconSize, request.cornerMode);
    if (const std::optional<Failure> failure = makeSubfolder(folder))
        result.files.append({path, request.customIconSize, 0, failure});
    else
        result.files.append(writeCustomIcon(request.icon, request.customIconSize, request.cornerMode, path));
    return result;
}

} // namespace lumora
