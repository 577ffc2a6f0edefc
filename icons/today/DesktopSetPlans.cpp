// SPDX-License-Identifier: MIT
#include "LinuxSizes.h"
#include "Motifs.h"
#include "SetPlans.h"
#include "WindowsAssets.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

void planAsset(const WindowsAsset &asset, const QString &folder, FilePlan &plan)
{
    for (const int scale : windowsScales) {
        PictureRecipe recipe;
        recipe.motif = asset.badge ? Motif::Monochrome : Motif::Icon;
        recipe.width = WindowsAsset::scaled(asset.width, scale);
        recipe.height = WindowsAsset::scaled(asset.height, scale);
        recipe.edge = std::min(recipe.width, recipe.height) * asset.iconPercent / 100;
        plan.addPicture(folder + u"/%1.scale-%2.png"_s.arg(QLatin1StringView(asset.name)).arg(scale), recipe);
    }
}

} // namespace

PlannedFile windowsIcon(const QString &path, const std::vector<int> &edges)
{
    PlannedFile file{path, FileKind::Ico, {}, {}};
    for (const int edge : edges)
        file.pictures.push_back(filled(Motif::Icon, edge));
    return file;
}

Outcome planWindows(const Motifs &motifs, const QString &folder, FilePlan &plan)
{
    plan.files.append(
        windowsIcon(below(folder, u"app.ico"_s), std::vector(windowsIconSizes.begin(), windowsIconSizes.end())));
    const QString assets = below(folder, u"Assets"_s);
    for (const WindowsAsset &asset : windowsAssets) {
        if (asset.badge && !motifs.hasMonochrome())
            plan.note(Derivation::MonochromeLeftOut);
        else
            planAsset(asset, assets, plan);
    }
    if (motifs.hasMonochrome() && motifs.sources().monochrome.isNull())
        plan.note(Derivation::MonochromeFromIcon);
    for (const int edge : windowsTargetSizes) {
        for (const char *form : targetSizeForms)
            plan.addPicture(assets + u"/AppList.targetsize-%1%2.png"_s.arg(edge).arg(QLatin1StringView(form)),
                            filled(Motif::Icon, edge));
    }
    return Done{};
}

Outcome planLinux(const Motifs &motifs, const SetOptions &options, const QString &folder, FilePlan &plan)
{
    const QString theme = below(folder, u"hicolor"_s);
    for (const int edge : hicolorSizes)
        plan.addPicture(theme + u"/%1x%1/apps/%2.png"_s.arg(QString::number(edge), options.name),
                        filled(Motif::Icon, edge));
    if (const QByteArray svg = motifs.sources().icon.svgFile(); !svg.isEmpty())
        plan.addText(theme + u"/scalable/apps/%1.svg"_s.arg(options.name), svg);
    else
        plan.note(Derivation::ScalableLeftOut);
    if (const QByteArray svg = motifs.sources().monochrome.svgFile(); !svg.isEmpty())
        plan.addText(theme + u"/symbolic/apps/%1-symbolic.svg"_s.arg(options.name), svg);
    return Done{};
}

} // namespace lumora
