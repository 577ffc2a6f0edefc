// SPDX-License-Identifier: MIT
#include "SetPlans.h"

#include "AppleSlots.h"
#include "Motifs.h"
#include "WebFigures.h"

using namespace Qt::StringLiterals;

namespace lumora
{

Outcome planSet(TodaySet set, const Motifs &motifs, const SetOptions &options, const QString &folder, FilePlan &plan)
{
    switch (set) {
    case TodaySet::Ios:
        return planIos(motifs, options, folder, plan);
    case TodaySet::MacOs:
        return planMacOs(motifs, folder, plan);
    case TodaySet::WatchOs:
        return planWatchOs(motifs, folder, plan);
    case TodaySet::Adaptive:
        return planAdaptive(motifs, {}, folder, plan);
    case TodaySet::Web:
        return planWeb(motifs, options, folder, plan);
    case TodaySet::Windows:
        return planWindows(motifs, folder, plan);
    case TodaySet::Linux:
        return planLinux(motifs, options, folder, plan);
    case TodaySet::TvOs:
        return planTvOs(motifs, folder, plan);
    case TodaySet::VisionOs:
        return planVisionOs(motifs, folder, plan);
    case TodaySet::IconComposer:
        return planIconComposer(motifs, options, folder, plan);
    }
    return Done{};
}

Result<PictureRecipe> opaqueIcon(const Motifs &motifs, int edge, FilePlan &plan)
{
    PictureRecipe recipe = filled(Motif::Icon, edge, PictureForm::Opaque);
    if (motifs.sources().icon.isOpaque())
        return recipe;
    if (!motifs.sources().flatten)
        return Failure{FailureCode::HasTransparency, {}, {}};
    const QColor color = *motifs.sources().flatten;
    plan.note(Derivation::IconFlattened, color.name());
    recipe.ground = color.rgb();
    return recipe;
}

bool hasDarkIcon(const Motifs &motifs)
{
    return !motifs.sources().dark.isNull() || !motifs.sources().icon.isOpaque();
}

Result<PictureRecipe> iosPicture(const Motifs &motifs, Appearance appearance, int edge, FilePlan &plan)
{
    switch (appearance) {
    case Appearance::Light:
        break;
    case Appearance::Dark:
        if (motifs.sources().dark.isNull())
            plan.note(Derivation::DarkIsIcon);
        return filled(Motif::Dark, edge);
    case Appearance::Tinted: {
        const bool given = !motifs.sources().tinted.isNull();
        if (!given)
            plan.note(Derivation::TintedFromIcon);
        if (!(given ? motifs.sources().tinted : motifs.sources().icon).isOpaque())
            plan.note(Derivation::TintedOnBlack);
        return filled(Motif::Tinted, edge, PictureForm::Opaque);
    }
    }
    return opaqueIcon(motifs, edge, plan);
}

PictureRecipe maskableIcon(const Motifs &motifs, int edge, FilePlan &plan)
{
    plan.note(Derivation::WebOnBackground, notedBackground(motifs, plan).name());
    PictureRecipe recipe = filled(Motif::Icon, edge, PictureForm::Opaque);
    recipe.edge = motifs.safeEdge(maskableSafePercent / 100.0, edge);
    recipe.ground = motifs.backgroundColor().rgb();
    return recipe;
}

PictureRecipe touchIcon(const Motifs &motifs, int edge, FilePlan &plan)
{
    PictureRecipe recipe = filled(Motif::Icon, edge, PictureForm::Opaque);
    if (motifs.sources().icon.isOpaque())
        return recipe;
    plan.note(Derivation::WebOnBackground, notedBackground(motifs, plan).name());
    recipe.ground = motifs.backgroundColor().rgb();
    return recipe;
}

QColor notedBackground(const Motifs &motifs, FilePlan &plan)
{
    const QColor color = motifs.backgroundColor();
    if (!motifs.sources().backgroundColor)
        plan.note(motifs.hasBorderColor() ? Derivation::BackgroundFromBorder : Derivation::BackgroundWhite,
                  motifs.hasBorderColor() ? color.name() : QString());
    return color;
}

QString below(const QString &folder, const QString &name)
{
    return folder.isEmpty() ? name : QString(folder + u'/' + name);
}

} // namespace lumora
