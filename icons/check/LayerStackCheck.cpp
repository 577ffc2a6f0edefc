// SPDX-License-Identifier: MIT
#include "CheckParts.h"
#include "icons/today/AppleSlots.h"
#include "icons/today/ContentsJson.h"
#include "icons/today/TodaySet.h"

#include <QDir>
#include <QJsonArray>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

QString contentsOf(const QString &folder)
{
    return folder + u'/' + QLatin1StringView(contentsName);
}

/// The named array in a folder's list; if there is none, adds a finding and returns nothing.
std::optional<QJsonArray> listOf(const QString &folder, const QString &key, IconCheck &check)
{
    const std::optional<QJsonObject> contents = readJson(contentsOf(folder));
    if (contents && (*contents)[key].isArray())
        return (*contents)[key].toArray();
    check.add(IconRule::ContentsUnreadable, contentsOf(folder));
    return std::nullopt;
}

/// The pictures of a set, each with the size `base` times its scale.
void checkImageSet(const QString &folder, QSize base, Transparency transparency, IconCheck &check)
{
    const std::optional<QJsonArray> images = listOf(folder, u"images"_s, check);
    if (!images)
        return;
    for (const auto &value : *images) {
        const QJsonObject image = value.toObject();
        const QString file = image[u"filename"_s].toString();
        if (file.isEmpty()) {
            check.add(IconRule::SlotEmpty, folder);
        } else if (!isPlainName(file)) {
            check.add(IconRule::FileOutside, folder, file);
        } else {
            SlotDemands demands;
            demands.size = base * std::max(image[u"scale"_s].toString().left(1).toInt(), 1);
            demands.transparency = transparency;
            checkSlot(folder + u'/' + file, demands, check);
        }
    }
}

/// Layers from the front to the back, of which the last is opaque.
void checkStack(const QString &folder, QSize base, IconCheck &check)
{
    const std::optional<QJsonArray> layers = listOf(folder, u"layers"_s, check);
    if (!layers)
        return;
    if (layers->size() < fewestLayers || layers->size() > mostLayers)
        check.add(IconRule::LayerCount, folder, QString::number(layers->size()));
    for (qsizetype index = 0; index < layers->size(); ++index) {
        const QString name = (*layers)[index].toObject()[u"filename"_s].toString();
        if (!isPlainName(name))
            check.add(IconRule::FileOutside, folder, name);
        else if (name.isEmpty() || !QDir(folder + u'/' + name).exists())
            check.add(IconRule::FileMissing, folder + u'/' + name);
        else
            checkImageSet(folder + u'/' + name + u"/Content.imageset"_s, base,
                          index + 1 == layers->size() ? Transparency::Lost : Transparency::Shown, check);
    }
}

/// Adds the values of a key anywhere in a document, and those of its forms for appearances.
void collectImageNames(const QJsonValue &value, QStringList &names)
{
    if (value.isArray()) {
        const QJsonArray array = value.toArray();
        for (const auto &one : array)
            collectImageNames(one, names);
    } else if (value.isObject()) {
        const QJsonObject object = value.toObject();
        for (auto entry = object.begin(); entry != object.end(); ++entry) {
            if (entry.key() == u"image-name")
                names << entry.value().toString();
            else if (entry.key() == u"image-name-specializations") {
                const QJsonArray forms = entry.value().toArray();
                for (const auto &form : forms)
                    names << form.toObject()[u"value"_s].toString();
            } else
                collectImageNames(entry.value(), names);
        }
    }
}

} // namespace

void checkBrandAssets(const QString &folder, IconCheck &check)
{
    check.checked << folder;
    const std::optional<QJsonArray> assets = listOf(folder, u"assets"_s, check);
    if (!assets)
        return;
    for (const auto &value : *assets) {
        const QJsonObject asset = value.toObject();
        const QString name = asset[u"filename"_s].toString();
        const QStringList edges = asset[u"size"_s].toString().split(u'x');
        const QSize size = edges.size() == 2 ? QSize(edges[0].toInt(), edges[1].toInt()) : QSize();
        if (name.isEmpty())
            check.add(IconRule::SlotEmpty, folder, asset[u"role"_s].toString());
        else if (!isPlainName(name))
            check.add(IconRule::FileOutside, folder, name);
        else if (!QDir(folder + u'/' + name).exists())
            check.add(IconRule::FileMissing, folder + u'/' + name);
        else if (name.endsWith(u".imagestack"))
            checkStack(folder + u'/' + name, size, check);
        else
            checkImageSet(folder + u'/' + name, size, Transparency::Lost, check);
    }
}

void checkVisionStack(const QString &folder, IconCheck &check)
{
    check.checked << folder;
    // Its only slot has double resolution.
    checkStack(folder, QSize(visionLayerSize / 2, visionLayerSize / 2), check);
}

void checkComposerBundle(const QString &folder, IconCheck &check)
{
    check.checked << folder;
    const QString list = folder + u"/icon.json"_s;
    const std::optional<QJsonObject> icon = readJson(list);
    if (!icon || !(*icon)[u"groups"_s].isArray()) {
        check.add(IconRule::ContentsUnreadable, list);
        return;
    }
    QStringList names;
    collectImageNames(*icon, names);
    const QString assets = folder + u"/Assets/"_s;
    for (const QString &name : names) {
        if (!isPlainName(name))
            check.add(IconRule::FileOutside, folder, name);
        else if (name.endsWith(u".svg", Qt::CaseInsensitive) && QFile::exists(assets + name))
            continue;
        else if (!name.isEmpty())
            checkSlot(assets + name, {}, check);
    }
    const QStringList files = QDir(assets).entryList(QDir::Files | QDir::NoSymLinks, QDir::Name);
    for (const QString &file : files) {
        if (!names.contains(file))
            check.add(IconRule::UnassignedFile, assets + file);
    }
}

} // namespace lumora
