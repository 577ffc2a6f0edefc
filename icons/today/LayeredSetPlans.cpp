// SPDX-License-Identifier: MIT
#include "AppleSlots.h"
#include "ContentsJson.h"
#include "Motifs.h"
#include "SetPlans.h"
#include "TodaySet.h"

#include <QJsonArray>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr auto tvFolder = "Assets.xcassets/App Icon & Top Shelf Image.brandassets"_L1;
constexpr auto visionFolder = "Assets.xcassets/AppIcon.solidimagestack"_L1;

QString contentsPath(const QString &folder)
{
    return folder + u'/' + QLatin1StringView(contentsName);
}

Outcome needLayers(const Motifs &motifs)
{
    const auto count = static_cast<int>(motifs.sources().layers.size());
    if (count < fewestLayers || count > mostLayers)
        return Failure{FailureCode::NeedsLayers, u"--layer"_s, QString::number(count)};
    return Done{};
}

/// "Front", "Middle", "Back"; several middle layers are "Middle 1" and so on from the front.
QString layerName(int fromFront, int count)
{
    if (fromFront == 0)
        return u"Front"_s;
    if (fromFront == count - 1)
        return u"Back"_s;
    return count == 3 ? u"Middle"_s : u"Middle %1"_s.arg(fromFront);
}

/// A size of a layer.
struct LayerPicture
{
    int width;
    int height;
    QString scale;
};

/// A layered picture: a folder with its list of layers, each a folder with one picture in the given sizes.
struct ImageStack
{
    QString folder;
    QString layerSuffix; ///< the end of the name of a layer's folder
    QString idiom;
    QList<LayerPicture> pictures;
};

/// The back layer fills its picture and is opaque; the others are in the middle of theirs.
PictureRecipe layerPicture(const Motifs &motifs, int layer, const LayerPicture &picture, FilePlan &plan)
{
    PictureRecipe recipe{Motif::Layer,
                         layer,
                         picture.width,
                         picture.height,
                         std::min(picture.width, picture.height),
                         0,
                         PictureForm::Transparent};
    if (layer > 0)
        return recipe;
    recipe.edge = std::max(picture.width, picture.height);
    recipe.form = PictureForm::Opaque;
    if (!motifs.sources().layers.first().isOpaque()) {
        recipe.ground = motifs.backgroundColor().rgb();
        plan.note(Derivation::BackLayerFlattened, notedBackground(motifs, plan).name());
    }
    return recipe;
}

void planStack(const Motifs &motifs, const ImageStack &stack, FilePlan &plan)
{
    const auto count = static_cast<int>(motifs.sources().layers.size());
    QJsonArray layers;
    for (int fromFront = 0; fromFront < count; ++fromFront)
        layers.append(QJsonObject{{u"filename"_s, QString(layerName(fromFront, count) + stack.layerSuffix)}});
    plan.addText(contentsPath(stack.folder), contentsJson({{u"layers"_s, layers}}));
    for (int fromFront = 0; fromFront < count; ++fromFront) {
        const QString folder = stack.folder + u'/' + layerName(fromFront, count) + stack.layerSuffix;
        const QString content = folder + u"/Content.imageset"_s;
        plan.addText(contentsPath(folder), contentsJson({}));
        QJsonArray images;
        FilePlan pictures;
        for (const LayerPicture &picture : stack.pictures) {
            const QString file = u"Content@%1.png"_s.arg(picture.scale);
            images.append(QJsonObject{{u"filename"_s, file}, {u"idiom"_s, stack.idiom}, {u"scale"_s, picture.scale}});
            pictures.addPicture(content + u'/' + file, layerPicture(motifs, count - 1 - fromFront, picture, plan));
        }
        plan.addText(contentsPath(content), contentsJson({{u"images"_s, images}}));
        plan.files += pictures.files;
    }
}

QList<LayerPicture> sizesOf(const TvAsset &asset)
{
    QList<LayerPicture> sizes{{asset.width, asset.height, u"1x"_s}};
    if (asset.doubled)
        sizes << LayerPicture{2 * asset.width, 2 * asset.height, u"2x"_s};
    return sizes;
}

void planShelf(const Motifs &motifs, const TvAsset &asset, const QString &folder, FilePlan &plan)
{
    plan.note(Derivation::ShelfFromLayers, notedBackground(motifs, plan).name());
    QJsonArray images;
    FilePlan pictures;
    for (const LayerPicture &size : sizesOf(asset)) {
        const QString file = u"Shelf@%1.png"_s.arg(size.scale);
        images.append(QJsonObject{{u"filename"_s, file}, {u"idiom"_s, u"tv"_s}, {u"scale"_s, size.scale}});
        pictures.addPicture(folder + u'/' + file,
                            {Motif::Layers, 0, size.width, size.height, size.height * shelfIconPercent / 100,
                             motifs.backgroundColor().rgb(), PictureForm::Opaque});
    }
    plan.addText(contentsPath(folder), contentsJson({{u"images"_s, images}}));
    plan.files += pictures.files;
}

} // namespace

Outcome planTvOs(const Motifs &motifs, const QString &folder, FilePlan &plan)
{
    if (const Outcome layers = needLayers(motifs); !layers)
        return layers;
    const QString brand = below(folder, tvFolder);
    plan.addText(contentsPath(below(folder, u"Assets.xcassets"_s)), contentsJson({}));
    QJsonArray assets;
    for (const TvAsset &asset : tvAssets) {
        assets.append(QJsonObject{{u"filename"_s, QLatin1StringView(asset.folder)},
                                  {u"idiom"_s, u"tv"_s},
                                  {u"role"_s, QLatin1StringView(asset.role)},
                                  {u"size"_s, u"%1x%2"_s.arg(asset.width).arg(asset.height)}});
    }
    plan.addText(contentsPath(brand), contentsJson({{u"assets"_s, assets}}));
    for (const TvAsset &asset : tvAssets) {
        const QString assetFolder = brand + u'/' + QLatin1StringView(asset.folder);
        if (asset.layered)
            planStack(motifs, {assetFolder, u".imagestacklayer"_s, u"tv"_s, sizesOf(asset)}, plan);
        else
            planShelf(motifs, asset, assetFolder, plan);
    }
    return Done{};
}

Outcome planVisionOs(const Motifs &motifs, const QString &folder, FilePlan &plan)
{
    if (const Outcome layers = needLayers(motifs); !layers)
        return layers;
    plan.addText(contentsPath(below(folder, u"Assets.xcassets"_s)), contentsJson({}));
    planStack(motifs,
              {below(folder, visionFolder),
               u".solidimagestacklayer"_s,
               u"vision"_s,
               {{visionLayerSize, visionLayerSize, u"2x"_s}}},
              plan);
    return Done{};
}

} // namespace lumora
