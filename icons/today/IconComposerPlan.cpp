// SPDX-License-Identifier: MIT
#include "AppleSlots.h"
#include "Motifs.h"
#include "SetPlans.h"
#include "TodaySet.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// "extended-srgb:0.20000,0.40000,1.00000,1.00000"
QString composerColor(const QColor &color)
{
    QStringList parts;
    for (const float part : {color.redF(), color.greenF(), color.blueF(), color.alphaF()})
        parts << QString::number(static_cast<double>(part), 'f', 5);
    return u"extended-srgb:"_s + parts.join(u',');
}

/// Adds a source to the bundle: a drawing as its SVG file, anything else as a picture. Returns the file's name.
QString addAsset(const QString &bundle, const QString &stem, const Artwork &artwork, const PictureRecipe &recipe,
                 FilePlan &plan)
{
    const QByteArray svg = artwork.svgFile();
    const QString file = stem + (svg.isEmpty() ? u".png"_s : u".svg"_s);
    const QString path = bundle + u"/Assets/"_s + file;
    if (svg.isEmpty())
        plan.addPicture(path, recipe);
    else
        plan.addText(path, svg);
    return file;
}

QJsonObject layer(const QString &name, const QString &file)
{
    return {{u"name"_s, name}, {u"image-name"_s, file}};
}

} // namespace

Outcome planIconComposer(const Motifs &motifs, const SetOptions &options, const QString &folder, FilePlan &plan)
{
    const TodaySources &sources = motifs.sources();
    const auto count = static_cast<int>(sources.layers.size());
    if (count == 1 || count > mostLayers)
        return Failure{FailureCode::NeedsLayers, u"--layer"_s, QString::number(count)};
    const QString bundle = below(folder, options.name + u".icon"_s);
    FilePlan assets;
    QJsonArray layers; // the front one first
    for (int index = count - 1; index >= 0; --index) {
        const QString name = index == 0 ? u"Back"_s : index == count - 1 ? u"Front"_s : u"Middle %1"_s.arg(index);
        PictureRecipe recipe = filled(Motif::Layer, storeIconSize);
        recipe.layer = index;
        layers.append(layer(name, addAsset(bundle, name, sources.layers[index], recipe, assets)));
    }
    if (count == 0) {
        plan.note(Derivation::LayersFromIcon);
        layers.append(
            layer(u"Front"_s, addAsset(bundle, u"Front"_s, sources.icon, filled(Motif::Icon, storeIconSize), assets)));
    }
    QJsonArray appearances;
    QJsonObject front = layers.first().toObject();
    const auto addAppearance = [&](const QString &value, const Artwork &artwork, Motif motif) {
        if (artwork.isNull())
            return;
        const QString stem = value.at(0).toUpper() + value.sliced(1);
        appearances.append(
            QJsonObject{{u"appearance"_s, value},
                        {u"value"_s, addAsset(bundle, stem, artwork, filled(motif, storeIconSize), assets)}});
    };
    addAppearance(u"dark"_s, sources.dark, Motif::Dark);
    addAppearance(u"tinted"_s, sources.tinted, Motif::Tinted);
    if (!appearances.isEmpty()) {
        appearances.prepend(QJsonObject{{u"value"_s, front[u"image-name"_s]}});
        front.remove(u"image-name"_s);
        front[u"image-name-specializations"_s] = appearances;
        layers[0] = front;
    }
    const QJsonObject icon{
        {u"fill"_s, QJsonObject{{u"solid"_s, composerColor(notedBackground(motifs, plan))}}},
        {u"groups"_s, QJsonArray{QJsonObject{{u"layers"_s, layers}}}},
        {u"supported-platforms"_s, QJsonObject{{u"circles"_s, QJsonArray{u"watchOS"_s}}, {u"squares"_s, u"shared"_s}}}};
    plan.addText(bundle + u"/icon.json"_s, QJsonDocument(icon).toJson(QJsonDocument::Indented));
    plan.files += assets.files;
    return Done{};
}

} // namespace lumora
