// SPDX-License-Identifier: MIT
#include "DensityPlan.h"

#include "foundation/WholeFile.h"
#include "pictures/PictureReader.h"
#include "pictures/svg/SvgDrawing.h"
#include "pictures/svg/SvgInspection.h"
#include "resizer/FileIdentity.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QSet>

#include <algorithm>
#include <map>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int deepestFolder = 64;

struct FoundPicture
{
    QString path;
    QString root; ///< the folder that the place is relative to
    DensityPlace place;
    SourceKind kind = SourceKind::Pictures;
};

bool isDrawing(const QString &extension)
{
    return extension == "svg"_L1;
}

bool isJpeg(const QString &extension)
{
    return extension == "jpg"_L1 || extension == "jpeg"_L1;
}

class Search
{
public:
    Search(const DensityRequest &request, const std::stop_token &stop, DensityPlan &plan)
        : m_layout(*request.layout), m_kind(request.kind), m_stop(stop), m_plan(plan)
    {
    }

    void run(const QString &path)
    {
        const QFileInfo file(path);
        m_root = file.absoluteFilePath();
        if (file.isDir())
            search(m_root, {}, 0);
        else if (file.exists())
            takeNamed(file);
        else
            m_plan.failures.push_back({FailureCode::NotFound, path, {}});
    }
    const std::vector<FoundPicture> &found() const { return m_found; }

private:
    void search(const QString &folder, const QString &relative, int depth)
    {
        const QDir directory(folder);
        if (!directory.isReadable() || depth > deepestFolder) {
            m_plan.failures.push_back({FailureCode::NoPermission, folder, {}});
            return;
        }
        const QFileInfoList entries =
            directory.entryInfoList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
        for (const QFileInfo &entry : entries) {
            if (m_stop.stop_requested() || m_isFull)
                return;
            const QString inside = relative.isEmpty() ? entry.fileName() : relative + u'/' + entry.fileName();
            const QString extension = entry.suffix().toLower();
            if (entry.isDir() && !entry.isSymLink())
                search(entry.filePath(), inside, depth + 1);
            else if (entry.isFile() && isWanted(extension))
                take(entry.filePath(), placeOf(inside, extension));
        }
    }

    /// Pictures of every density are looked at, drawings only where they are the sources.
    bool isWanted(const QString &extension) const
    {
        if (isDrawing(extension))
            return m_kind == SourceKind::Drawings;
        return m_kind == SourceKind::Pictures && (extension == "png"_L1 || extension == "webp"_L1 || isJpeg(extension));
    }

    /// A file's density may be in its name or in that of its folder.
    void takeNamed(const QFileInfo &file)
    {
        const QString extension = file.suffix().toLower();
        const QString path = file.absoluteFilePath();
        const QDir folder = file.absoluteDir();
        const QString withFolder = folder.dirName() + u'/' + file.fileName();
        std::optional<DensityPlace> place = placeOf(withFolder, extension);
        m_root = QFileInfo(folder.path()).path();
        // The folder's name is of no use where it is the same for all densities.
        if (const std::optional<DensityPlace> bare = placeOf(file.fileName(), extension);
            bare && (!place || place->folder == folder.dirName() || isDrawing(extension))) {
            place = bare;
            m_root = folder.path();
        }
        if (!place)
            m_plan.failures.push_back({FailureCode::InvalidValue, path, "DETAIL_NO_DENSITY_PLACE"});
        else
            take(path, place);
    }

    std::optional<DensityPlace> placeOf(const QString &relative, const QString &extension) const
    {
        return isDrawing(extension) ? m_layout.drawingPlace(relative) : m_layout.place(relative);
    }

    void take(const QString &path, const std::optional<DensityPlace> &place)
    {
        if (!place || m_known.contains(path))
            return;
        if (m_found.size() == mostDensityFiles) {
            m_isFull = true;
            m_plan.failures.push_back({FailureCode::TooLarge, m_root, "DETAIL_TOO_MANY_PICTURES"});
            return;
        }
        m_known.insert(path);
        m_found.push_back({path, m_root, *place,
                           isDrawing(place->extension.toLower()) ? SourceKind::Drawings : SourceKind::Pictures});
    }

    const DensityLayout &m_layout;
    const SourceKind m_kind;
    const std::stop_token &m_stop;
    DensityPlan &m_plan;
    QString m_root;
    std::vector<FoundPicture> m_found;
    QSet<QString> m_known;
    bool m_isFull = false;
};

/// A picture has the same key in all its densities and formats.
QString keyOfPicture(const FoundPicture &picture)
{
    const DensityPlace &place = picture.place;
    return picture.root + u'/' + place.folder + u'/' + place.name + u'/' + place.suffix;
}

/// A picture has the same key in all its densities.
QString keyOf(const FoundPicture &picture)
{
    return keyOfPicture(picture) + u'/' + picture.place.extension;
}

/// Where all formats become one, a picture's smaller densities in another format are of no use as sources; they may be
/// what an earlier run made.
void leaveSmallerOnesOut(std::vector<FoundPicture> &chosen)
{
    QHash<QString, Density> largest;
    for (const FoundPicture &picture : chosen) {
        Density &density = largest[keyOfPicture(picture)];
        density = std::max(density, picture.place.density);
    }
    std::erase_if(chosen, [&largest](const FoundPicture &picture) {
        return picture.kind == SourceKind::Pictures && picture.place.density < largest.value(keyOfPicture(picture));
    });
}

/// The pictures to scale from: those of the wanted density, or the largest of each picture.
std::vector<FoundPicture> chosenSources(const std::vector<FoundPicture> &found, const DensityRequest &request)
{
    std::map<QString, FoundPicture> largest;
    for (const FoundPicture &picture : found) {
        const auto [place, isNew] = largest.try_emplace(keyOf(picture), picture);
        const bool wanted =
            request.from ? picture.place.density == *request.from : place->second.place.density < picture.place.density;
        if (!isNew && wanted)
            place->second = picture;
    }
    std::vector<FoundPicture> chosen;
    for (const auto &[key, picture] : largest) {
        const Density &density = picture.place.density;
        const bool isWanted = request.from ? density == *request.from : picture.place.stated && Density{} < density;
        if (picture.kind == SourceKind::Drawings || isWanted)
            chosen.push_back(picture);
    }
    if (request.format != ScaledFormat::AsSource)
        leaveSmallerOnesOut(chosen);
    std::ranges::sort(chosen, {}, &FoundPicture::path);
    return chosen;
}

std::vector<Density> wantedDensities(const DensityRequest &request, const FoundPicture &source)
{
    std::vector<Density> densities;
    const auto add = [&densities, &source](const Density &density) {
        const bool isMade = source.kind == SourceKind::Drawings || density < source.place.density;
        if (isMade && std::ranges::find(densities, density) == densities.end())
            densities.push_back(density);
    };
    if (request.to.empty())
        std::ranges::for_each(request.layout->usual, add);
    else
        std::ranges::for_each(request.to, add);
    return densities;
}

ScaledFormat formatOf(const DensityRequest &request, const DensityPlace &place)
{
    if (request.format != ScaledFormat::AsSource)
        return request.format;
    return place.extension.compare("webp"_L1, Qt::CaseInsensitive) == 0 ? ScaledFormat::WebP : ScaledFormat::Png;
}

/// The size of a source: in pixels, or of a drawing in points.
Result<QSize> sourceSize(const FoundPicture &source, const ReadFile &read)
{
    const bool isPicture = source.kind == SourceKind::Pictures;
    const Result<QByteArray> bytes = read(source.path, isPicture ? largestPictureFile : largestSvgFile);
    if (!bytes)
        return bytes.failure();
    if (isPicture)
        return storedPixelSize(bytes.value(), source.path);
    const auto drawing = SvgDrawing::read(bytes.value(), source.path, SvgShape::Any);
    if (!drawing)
        return drawing.failure();
    return drawing.value()->size();
}

class Planner
{
public:
    Planner(const DensityRequest &request, const ReadFile &read, DensityPlan &plan)
        : m_request(request), m_read(read), m_plan(plan)
    {
    }

    void keepAsSource(const QString &path) { m_sources.insert(fileIdentity(path)); }

    void add(const FoundPicture &picture)
    {
        if (const FailureDetail reason = refusal(picture); !reason.isEmpty()) {
            m_plan.failures.push_back({FailureCode::InvalidValue, picture.path, reason});
            return;
        }
        const Result<QSize> size = sourceSize(picture, m_read);
        if (!size) {
            m_plan.failures.push_back(size.failure());
            return;
        }
        if (qint64{size.value().width()} * size.value().height() > largestPictureArea) {
            m_plan.failures.push_back({FailureCode::TooLarge, picture.path, {}});
            return;
        }
        PlannedSource source{picture.path, size.value(), picture.place.density, picture.kind, {}};
        for (const Density &density : wantedDensities(m_request, picture))
            addPicture(source, picture, density);
        if (!source.pictures.empty())
            m_plan.sources.push_back(std::move(source));
    }

private:
    FailureDetail refusal(const FoundPicture &picture) const
    {
        if (picture.path.endsWith(".9.png"_L1, Qt::CaseInsensitive))
            return "DETAIL_NINE_PATCH";
        if (m_request.format == ScaledFormat::AsSource && isJpeg(picture.place.extension.toLower()))
            return "DETAIL_JPEG_NEEDS_FORMAT";
        return {};
    }

    void addPicture(PlannedSource &source, const FoundPicture &found, const Density &density)
    {
        PlannedTarget picture;
        picture.format = formatOf(m_request, found.place);
        const QString extension = picture.format == ScaledFormat::WebP ? u"webp"_s : u"png"_s;
        const QString &root = m_request.destination.isEmpty() ? found.root : m_request.destination;
        picture.target = QDir::cleanPath(root + u'/' + m_request.layout->path(found.place, density, extension));
        picture.density = density;
        const ScaledSize scaled = scaledSize(source.size, source.density, density);
        picture.size = scaled.size;
        picture.rounded = scaled.rounded;
        if (source.kind == SourceKind::Drawings &&
            qint64{scaled.size.width()} * scaled.size.height() > SvgDrawing::largestArea) {
            m_plan.failures.push_back({FailureCode::TooLarge, picture.target, {}});
            return;
        }
        const QFileInfo file(picture.target);
        picture.exists = file.exists() || file.isSymLink();
        picture.written = !picture.exists || m_request.existing == ExistingFiles::Replace;
        const QString identity = fileIdentity(picture.target);
        if (picture.written && m_sources.contains(identity)) {
            m_plan.failures.push_back({FailureCode::WouldReplaceSource, picture.target, {}});
            return;
        }
        if (const QString other = m_targets.value(identity); !other.isEmpty()) {
            m_plan.failures.push_back(
                {FailureCode::InvalidValue, source.source, {"DETAIL_SAME_FILE", {{"[FILE]", other}}}});
            return;
        }
        m_targets.insert(identity, source.source);
        source.pictures.push_back(picture);
    }

    const DensityRequest &m_request;
    const ReadFile &m_read;
    DensityPlan &m_plan;
    QSet<QString> m_sources;
    QHash<QString, QString> m_targets;
};

} // namespace

qsizetype plannedFiles(const DensityPlan &plan)
{
    qsizetype count = 0;
    for (const PlannedSource &source : plan.sources)
        count += std::ranges::count_if(source.pictures, &PlannedTarget::written);
    return count;
}

DensityPlan planDensities(const QStringList &paths, const DensityRequest &request, const std::stop_token &stop,
                          const ReadFile &read)
{
    DensityPlan plan;
    Search search(request, stop, plan);
    for (const QString &path : paths)
        search.run(path);
    const std::vector<FoundPicture> sources = chosenSources(search.found(), request);
    Planner planner(request, read, plan);
    for (const FoundPicture &picture : sources)
        planner.keepAsSource(picture.path);
    for (const FoundPicture &picture : sources) {
        if (stop.stop_requested())
            break;
        planner.add(picture);
    }
    if (sources.empty() && plan.failures.empty())
        plan.failures.push_back({FailureCode::MissingContent, paths.value(0), "DETAIL_NO_SCALABLE"});
    return plan;
}

std::vector<Failure> filesWithoutUse(const QStringList &paths, const DensityPlan &plan)
{
    QSet<QString> used;
    for (const PlannedSource &source : plan.sources) {
        used.insert(source.source);
        for (const PlannedTarget &target : source.pictures)
            used.insert(target.target);
    }
    for (const Failure &failure : plan.failures)
        used.insert(QFileInfo(failure.subject).absoluteFilePath());
    std::vector<Failure> unused;
    for (const QString &path : paths) {
        const QFileInfo file(path);
        if (file.isFile() && !used.contains(file.absoluteFilePath()))
            unused.push_back({FailureCode::MissingContent, path, "DETAIL_NO_SCALABLE"});
    }
    return unused;
}

} // namespace lumora
