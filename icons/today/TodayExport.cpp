// SPDX-License-Identifier: MIT
#include "TodayExport.h"

#include "AppleSlots.h"
#include "Motifs.h"
#include "PictureWorkshop.h"
#include "WindowsAssets.h"
#include "foundation/MemoryLimit.h"
#include "foundation/WholeFile.h"
#include "pictures/IcnsWriter.h"
#include "pictures/ico/IcoWriter.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

Result<QByteArray> icoBytes(const PlannedFile &file, PictureWorkshop &workshop)
{
    std::vector<IcoPicture> pictures;
    for (const PictureRecipe &recipe : file.pictures) {
        const Result<QImage> pixels = workshop.pixels(recipe);
        if (!pixels)
            return pixels.failure();
        IcoPicture picture{pixels.value(), {}};
        if (recipe.edge >= firstPngIconSize) {
            const Result<QByteArray> png = workshop.file(recipe);
            if (!png)
                return png.failure();
            picture.png = png.value();
        }
        pictures.push_back(std::move(picture));
    }
    return icoFile(pictures);
}

Result<QByteArray> icnsBytes(const PlannedFile &file, PictureWorkshop &workshop)
{
    std::vector<IcnsMember> members;
    for (std::size_t index = 0; index < file.pictures.size(); ++index) {
        const Result<QByteArray> png = workshop.file(file.pictures[index]);
        if (!png)
            return png.failure();
        members.push_back({macSlots[index].icnsType, png.value()});
    }
    return icnsFile(members);
}

Result<QByteArray> bytesOf(const PlannedFile &file, PictureWorkshop &workshop)
{
    switch (file.kind) {
    case FileKind::Picture:
        return workshop.file(file.pictures.front());
    case FileKind::Ico:
        return icoBytes(file, workshop);
    case FileKind::Icns:
        return icnsBytes(file, workshop);
    case FileKind::Text:
        break;
    }
    return file.text;
}

TodayFile writeFile(const PlannedFile &planned, PictureWorkshop &workshop, const QString &folder)
{
    TodayFile file{folder + u'/' + planned.path, 0, 0, 0, std::nullopt};
    for (const PictureRecipe &recipe : planned.pictures) {
        file.width = std::max(file.width, recipe.width);
        file.height = std::max(file.height, recipe.height);
    }
    const QString parent = QFileInfo(file.path).path();
    if (!QDir().mkpath(parent)) {
        file.failure = Failure{FailureCode::CannotCreateFolder, parent, {}};
        return file;
    }
    const Result<QByteArray> bytes = plannedBytes(planned, workshop);
    const Outcome written = bytes ? writeWholeFile(file.path, bytes.value()) : Outcome(bytes.failure());
    if (written)
        file.bytes = bytes.value().size();
    else
        file.failure = written.failure();
    return file;
}

} // namespace

QList<Failure> TodayExport::failures() const
{
    QList<Failure> all;
    for (const TodayFile &file : files) {
        if (file.failure)
            all << *file.failure;
    }
    return all;
}

Result<FilePlan> planSets(const QList<TodaySet> &sets, const Motifs &motifs, const SetOptions &options)
{
    FilePlan plan;
    for (const TodaySetInfo &info : todaySets) {
        if (!sets.contains(info.set))
            continue;
        const Outcome planned = planSet(info.set, motifs, options, QLatin1StringView(info.folder), plan);
        if (!planned && planned.failure().code == FailureCode::HasTransparency)
            return Failure{FailureCode::HasTransparency, {}, QString::fromLatin1(info.commandName)};
        if (!planned)
            return planned.failure();
    }
    return plan;
}

TodayExport writePlan(const FilePlan &plan, const Motifs &motifs, const QString &folder, const FileProgress &progress)
{
    TodayExport result{folder, {}, plan.derived, false};
    PictureWorkshop workshop(motifs);
    workshop.prepare(recipesOf(plan));
    for (const PlannedFile &file : plan.files) {
        result.isStopped = progress && !progress(result.files.size() + 1, plan.files.size(), file.path);
        if (result.isStopped)
            break;
        result.files.append(writeFile(file, workshop, folder));
    }
    return result;
}

Result<QByteArray> plannedBytes(const PlannedFile &file, PictureWorkshop &workshop)
{
    Result<QByteArray> bytes = withinMemory(file.path, [&] { return bytesOf(file, workshop); });
    return bytes ? bytes : Failure{bytes.failure().code, file.path, bytes.failure().detail};
}

std::vector<PictureRecipe> recipesOf(const FilePlan &plan)
{
    std::vector<PictureRecipe> recipes;
    for (const PlannedFile &file : plan.files) {
        // In a Windows icon file only the largest pictures are PNG files.
        if (file.kind == FileKind::Picture || file.kind == FileKind::Icns)
            recipes.insert(recipes.end(), file.pictures.begin(), file.pictures.end());
    }
    return recipes;
}

} // namespace lumora
