// SPDX-License-Identifier: MIT
#include "DensityPlan.h"

#include "foundation/WholeFile.h"
#include "pictures/PictureReader.h"
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
    DensityPlace place;
};

bool isPicture(const QString &name)
{
    return name.endsWith(".png"_L1) || name.endsWith(".webp"_L1);
}

class Search
{
public:
    Search(const QString &folder, const DensityLayout &layout) : m_root(folder), m_layout(layout) {}

    void run(DensityPlan &plan) { search(m_root, {}, 0, plan); }
    const std::vector<FoundPicture> &found() const { return m_found; }

private:
    void search(const QString &folder, const QString &relative, int depth, DensityPlan &plan)
    {
        const QDir directory(folder);
        if (!directory.isReadable() || depth > deepestFolder) {
            plan.failures.push_back({FailureCode::NoPermission, folder, {}});
            return;
        }
        const QFileInfoList entries =
            directory.entryInfoList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
        for (const QFileInfo &entry : entries) {
            const QString inside = relative.isEmpty() ? entry.fileName() : relative + u'/' + entry.fileName();
            if (entry.isDir() && !entry.isSymLink())
                search(entry.filePath(), inside, depth + 1, plan);
            else if (entry.isFile() && isPicture(entry.fileName()))
                take(entry.filePath(), inside);
        }
    }

    void take(const QString &path, const QString &relative)
    {
        if (const std::optional<DensityPlace> place = m_layout.place(relative))
            m_found.push_back({path, *place});
    }

    QString m_root;
    const DensityLayout &m_layout;
    std::vector<FoundPicture> m_found;
};

/// A picture has the same key in all its densities.
QString keyOf(const DensityPlace &place)
{
    return place.folder + u'/' + place.name + u'/' + place.suffix + u'/' + place.extension;
}

/// The pictures to scale from: those of the wanted density, or the largest of each picture.
std::vector<FoundPicture> chosenSources(const std::vector<FoundPicture> &found, const DensityRequest &request)
{
    std::map<QString, FoundPicture> largest;
    for (const FoundPicture &picture : found) {
        const auto [place, isNew] = largest.try_emplace(keyOf(picture.place), picture);
        const bool wanted =
            request.from ? picture.place.density == *request.from : place->second.place.density < picture.place.density;
        if (!isNew && wanted)
            place->second = picture;
    }
    std::vector<FoundPicture> chosen;
    for (const auto &[key, picture] : largest) {
        const Density &density = picture.place.density;
        if (request.from ? density == *request.from : picture.place.stated && Density{} < density)
            chosen.push_back(picture);
    }
    std::ranges::sort(chosen, {}, &FoundPicture::path);
    return chosen;
}

std::vector<Density> wantedDensities(const DensityRequest &request, const Density &from)
{
    std::vector<Density> densities;
    const auto add = [&densities, &from](const Density &density) {
        if (density < from && std::ranges::find(densities, density) == densities.end())
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
    return place.extension == "webp"_L1 ? ScaledFormat::WebP : ScaledFormat::Png;
}

class Planner
{
public:
    Planner(const QString &folder, const DensityRequest &request, DensityPlan &plan)
        : m_request(request), m_plan(plan), m_root(request.destination.isEmpty() ? folder : request.destination)
    {
    }

    void keepAsSource(const QString &path) { m_sources.insert(fileIdentity(path)); }

    void add(const FoundPicture &picture)
    {
        if (picture.path.endsWith(".9.png"_L1)) {
            m_plan.failures.push_back({FailureCode::InvalidValue, picture.path, "DETAIL_NINE_PATCH"});
            return;
        }
        const Result<QSize> size = storedPixelSize(picture.path);
        if (!size) {
            m_plan.failures.push_back(size.failure());
            return;
        }
        if (qint64{size.value().width()} * size.value().height() > largestPictureArea) {
            m_plan.failures.push_back({FailureCode::TooLarge, picture.path, {}});
            return;
        }
        PlannedSource source{picture.path, size.value(), picture.place.density, {}};
        for (const Density &density : wantedDensities(m_request, picture.place.density))
            addPicture(source, picture.place, density);
        if (!source.pictures.empty())
            m_plan.sources.push_back(std::move(source));
    }

private:
    void addPicture(PlannedSource &source, const DensityPlace &place, const Density &density)
    {
        PlannedPicture picture;
        picture.format = formatOf(m_request, place);
        const QString extension = picture.format == ScaledFormat::WebP ? u"webp"_s : u"png"_s;
        picture.target = m_root + u'/' + m_request.layout->path(place, density, extension);
        picture.density = density;
        const ScaledSize scaled = scaledSize(source.size, source.density, density);
        picture.size = scaled.size;
        picture.rounded = scaled.rounded;
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
    DensityPlan &m_plan;
    QString m_root;
    QSet<QString> m_sources;
    QHash<QString, QString> m_targets;
};

} // namespace

DensityPlan planDensities(const QString &folder, const DensityRequest &request)
{
    DensityPlan plan;
    const QFileInfo root(folder);
    if (!root.exists() || !root.isDir()) {
        plan.failures.push_back({root.exists() ? FailureCode::NotAFolder : FailureCode::NotFound, folder, {}});
        return plan;
    }
    Search search(root.absoluteFilePath(), *request.layout);
    search.run(plan);
    const std::vector<FoundPicture> sources = chosenSources(search.found(), request);
    Planner planner(root.absoluteFilePath(), request, plan);
    for (const FoundPicture &picture : sources)
        planner.keepAsSource(picture.path);
    for (const FoundPicture &picture : sources)
        planner.add(picture);
    if (sources.empty() && plan.failures.empty())
        plan.failures.push_back({FailureCode::MissingContent, folder, "DETAIL_NO_SCALABLE"});
    return plan;
}

} // namespace lumora
