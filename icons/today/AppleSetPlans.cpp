// SPDX-License-Identifier: MIT
#include "AppleSlots.h"
#include "ContentsJson.h"
#include "Motifs.h"
#include "SetPlans.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr auto catalogue = "Assets.xcassets"_L1;
constexpr auto iconSet = "Assets.xcassets/AppIcon.appiconset"_L1;

struct AppearanceNames
{
    Appearance appearance;
    const char *value;    ///< the catalogue's name for it, empty for the plain appearance
    const char *fileForm; ///< between a file's stem and its size
};

constexpr AppearanceNames appearances[] = {
    {Appearance::Light, "", ""},
    {Appearance::Dark, "dark", "-Dark"},
    {Appearance::Tinted, "tinted", "-Tinted"},
};

void planCatalogue(const QString &folder, FilePlan &plan)
{
    plan.addText(below(folder, QString(catalogue) + u'/' + QLatin1StringView(contentsName)), contentsJson({}));
}

void planContents(const QString &folder, const QJsonArray &images, FilePlan &plan)
{
    plan.addText(below(folder, QString(iconSet) + u'/' + QLatin1StringView(contentsName)),
                 contentsJson({{u"images"_s, images}}));
}

QJsonObject withAppearance(QJsonObject image, const AppearanceNames &names)
{
    if (names.appearance != Appearance::Light)
        image[u"appearances"_s] =
            QJsonArray{QJsonObject{{u"appearance"_s, u"luminosity"_s}, {u"value"_s, QLatin1StringView(names.value)}}};
    return image;
}

/// "-60@2x", "-83.5@2x", nothing for the store's picture.
QString sizeForm(const IosSlot &slot)
{
    if (slot.pixels() == storeIconSize)
        return {};
    const QString size = slotSize(slot.tenths);
    return u'-' + size.first(size.indexOf(u'x')) + u"@%1x"_s.arg(slot.scale);
}

Outcome planUniversal(const Motifs &motifs, const QString &platform, const QString &folder, FilePlan &plan)
{
    planCatalogue(folder, plan);
    const Result<PictureRecipe> picture = opaqueIcon(motifs, storeIconSize, plan);
    if (!picture)
        return picture.failure();
    planContents(folder,
                 {QJsonObject{{u"filename"_s, u"AppIcon.png"_s},
                              {u"idiom"_s, u"universal"_s},
                              {u"platform"_s, platform},
                              {u"size"_s, u"1024x1024"_s}}},
                 plan);
    plan.addPicture(below(folder, iconSet + u"/AppIcon.png"_s), picture.value());
    return Done{};
}

} // namespace

Outcome planIos(const Motifs &motifs, const SetOptions &options, const QString &folder, FilePlan &plan)
{
    FilePlan pictures;
    QJsonArray images;
    for (const AppearanceNames &names : appearances) {
        if (names.appearance == Appearance::Dark && !hasDarkIcon(motifs)) {
            plan.note(Derivation::DarkLeftOut);
            continue;
        }
        for (const IosSlot &slot : iosSlots) {
            if (options.iosForm == IosForm::OneSize && slot.pixels() != storeIconSize)
                continue;
            const Result<PictureRecipe> picture = iosPicture(motifs, names.appearance, slot.pixels(), plan);
            if (!picture)
                return picture.failure();
            const QString file = u"AppIcon"_s + QLatin1StringView(names.fileForm) + sizeForm(slot) + u".png"_s;
            QJsonObject image{{u"filename"_s, file},
                              {u"idiom"_s, u"universal"_s},
                              {u"platform"_s, u"ios"_s},
                              {u"size"_s, slotSize(slot.tenths)}};
            if (slot.scale > 1)
                image[u"scale"_s] = u"%1x"_s.arg(slot.scale);
            images.append(withAppearance(image, names));
            pictures.addPicture(below(folder, iconSet + u'/' + file), picture.value());
        }
    }
    planCatalogue(folder, plan);
    planContents(folder, images, plan);
    plan.files += pictures.files;
    return Done{};
}

Outcome planMacOs(const Motifs &motifs, const QString &folder, FilePlan &plan)
{
    Q_UNUSED(motifs)
    planCatalogue(folder, plan);
    QJsonArray images;
    for (const MacSlot &slot : macSlots) {
        images.append(QJsonObject{{u"filename"_s, QLatin1StringView(slot.file)},
                                  {u"idiom"_s, u"mac"_s},
                                  {u"scale"_s, u"%1x"_s.arg(slot.scale)},
                                  {u"size"_s, slotSize(slot.points * 10)}});
    }
    planContents(folder, images, plan);
    for (const MacSlot &slot : macSlots)
        plan.addPicture(below(folder, iconSet + u'/' + QLatin1StringView(slot.file)),
                        filled(Motif::MacBody, slot.pixels()));
    plan.files.append(macIconFile(below(folder, u"AppIcon.icns"_s)));
    return Done{};
}

Outcome planWatchOs(const Motifs &motifs, const QString &folder, FilePlan &plan)
{
    return planUniversal(motifs, u"watchos"_s, folder, plan);
}

PlannedFile macIconFile(const QString &path)
{
    PlannedFile file{path, FileKind::Icns, {}, {}};
    for (const MacSlot &slot : macSlots)
        file.pictures.push_back(filled(Motif::MacBody, slot.pixels()));
    return file;
}

} // namespace lumora
