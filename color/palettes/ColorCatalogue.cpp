// SPDX-License-Identifier: MIT
#include "ColorCatalogue.h"

#include <QDirIterator>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr auto setSuffix = ".colorset"_L1;

Failure tooLarge(const QString &folder)
{
    return {FailureCode::TooLarge, folder, {}};
}

/// The paths of the color sets, sorted.
Result<QStringList> colorSets(const QString &folder, const std::stop_token &stop, int mostEntries)
{
    QStringList sets;
    if (folder.endsWith(setSuffix))
        sets << folder;
    int looked = 0;
    QDirIterator entries(folder, QDir::Dirs | QDir::Files | QDir::NoSymLinks | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext() && !stop.stop_requested()) {
        const QString path = entries.next();
        if (++looked > mostEntries)
            return tooLarge(folder);
        if (path.endsWith(setSuffix) && entries.fileInfo().isDir())
            sets << path;
    }
    sets.sort();
    return sets;
}

} // namespace

Result<CatalogueColors> readColorCatalogue(const QString &folder, const std::stop_token &stop, int mostEntries,
                                           const ReadFile &read)
{
    const QFileInfo root(folder);
    if (!root.isDir())
        return Failure{root.exists() ? FailureCode::NotAFolder : FailureCode::NotFound, folder, {}};
    const Result<QStringList> sets = colorSets(root.absoluteFilePath(), stop, mostEntries);
    if (!sets)
        return sets.failure();
    if (sets.value().isEmpty())
        return Failure{FailureCode::MissingContent, folder, "DETAIL_NO_COLOR_SET"};
    CatalogueColors colors;
    for (const QString &set : sets.value()) {
        if (stop.stop_requested())
            break;
        const QString name = QFileInfo(set).fileName().chopped(setSuffix.size());
        const QString file = set + u"/Contents.json"_s;
        const Result<QByteArray> bytes = read(file, largestPaletteFile);
        const Result<Palette> colorsOfSet = bytes ? readPalette(bytes.value(), name) : Result<Palette>(bytes.failure());
        if (!colorsOfSet) {
            colors.failures.push_back({colorsOfSet.failure().code, set, colorsOfSet.failure().detail});
            continue;
        }
        if (colors.palette.size() + colorsOfSet.value().size() > mostPaletteColors)
            return tooLarge(folder);
        colors.palette.insert(colors.palette.end(), colorsOfSet.value().begin(), colorsOfSet.value().end());
    }
    return colors;
}

} // namespace lumora
