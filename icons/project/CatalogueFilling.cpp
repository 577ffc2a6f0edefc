// SPDX-License-Identifier: MIT
#include "CatalogueFilling.h"

#include "foundation/WholeFile.h"
#include "icons/today/AppleSlots.h"
#include "icons/today/ContentsJson.h"
#include "icons/today/Motifs.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr qint64 longestList = 4LL * 1024 * 1024;

Appearance appearanceOf(const QJsonObject &image)
{
    const QJsonArray appearances = image[u"appearances"_s].toArray();
    for (const auto &value : appearances) {
        const QString name = value.toObject()[u"value"_s].toString();
        if (name == u"dark")
            return Appearance::Dark;
        if (name == u"tinted")
            return Appearance::Tinted;
    }
    return Appearance::Light;
}

int pixelsOf(const QJsonObject &image)
{
    const double points = image[u"size"_s].toString().section(u'x', 0, 0).toDouble();
    const int scale = std::max(image[u"scale"_s].toString().section(u'x', 0, 0).toInt(), 1);
    const double pixels = points * scale;
    return pixels >= 1 && pixels <= storeIconSize ? static_cast<int>(std::lround(pixels)) : 0;
}

QString fileNameFor(const QJsonObject &image, Appearance appearance, int pixels)
{
    QString name = u"AppIcon"_s;
    if (appearance != Appearance::Light)
        name += appearance == Appearance::Dark ? u"-Dark"_s : u"-Tinted"_s;
    const QString idiom = image[u"idiom"_s].toString();
    if (idiom != u"universal" && idiom != u"ios-marketing")
        name += u'-' + idiom;
    if (pixels != storeIconSize)
        name += u'-' + QString::number(pixels);
    return name + u".png"_s;
}

/// The list that Xcode writes into a new catalogue.
QJsonArray newList(CataloguePlatform platform)
{
    QJsonArray images;
    if (platform == CataloguePlatform::Mac) {
        for (const MacSlot &slot : macSlots)
            images.append(QJsonObject{{u"filename"_s, QLatin1StringView(slot.file)},
                                      {u"idiom"_s, u"mac"_s},
                                      {u"scale"_s, u"%1x"_s.arg(slot.scale)},
                                      {u"size"_s, slotSize(slot.points * 10)}});
        return images;
    }
    for (const char *appearance : {"", "dark", "tinted"}) {
        QJsonObject image{{u"idiom"_s, u"universal"_s}, {u"platform"_s, u"ios"_s}, {u"size"_s, u"1024x1024"_s}};
        if (*appearance != '\0')
            image[u"appearances"_s] = QJsonArray{
                QJsonObject{{u"appearance"_s, u"luminosity"_s}, {u"value"_s, QLatin1StringView(appearance)}}};
        images.append(image);
    }
    return images;
}

/// A catalogue that is added to a plan.
class Filling
{
public:
    Filling(const QString &folder, const Motifs &motifs, FilePlan &plan)
        : m_folder(folder), m_motifs(motifs), m_plan(plan)
    {
    }

    Outcome fill(QJsonObject list, bool isNew)
    {
        QJsonArray images = list[u"images"_s].toArray();
        for (qsizetype index = 0; index < images.size(); ++index) {
            QJsonObject image = images[index].toObject();
            const Outcome filled = fillSlot(image);
            if (!filled)
                return filled;
            images[index] = image;
        }
        list[u"images"_s] = images;
        if (isNew || m_listChanged)
            m_plan.addText(m_folder + u'/' + QLatin1StringView(contentsName), contentsJson(list));
        m_plan.files += m_pictures.files;
        return Done{};
    }

private:
    Outcome fillSlot(QJsonObject &image)
    {
        const int pixels = pixelsOf(image);
        if (pixels == 0)
            return Done{};
        const Appearance appearance = appearanceOf(image);
        if (appearance == Appearance::Dark && !hasDarkIcon(m_motifs)) {
            m_plan.note(Derivation::DarkLeftOut);
            return Done{};
        }
        Result<PictureRecipe> picture = image[u"idiom"_s].toString() == u"mac"
                                            ? Result<PictureRecipe>(filled(Motif::MacBody, pixels))
                                            : iosPicture(m_motifs, appearance, pixels, m_plan);
        if (!picture)
            return picture.failure();
        QString name = image[u"filename"_s].toString();
        if (name.contains(u'/') || name == u"..")
            return Failure{FailureCode::LeadsOutside, m_folder + u'/' + name, {}};
        if (name.isEmpty()) {
            name = fileNameFor(image, appearance, pixels);
            image[u"filename"_s] = name;
            m_listChanged = true;
        }
        // Slots of the same size may share a file.
        if (!m_names.contains(name))
            m_pictures.addPicture(m_folder + u'/' + name, picture.value());
        m_names << name;
        return Done{};
    }

    QString m_folder;
    const Motifs &m_motifs;
    FilePlan &m_plan;
    FilePlan m_pictures;
    QSet<QString> m_names;
    bool m_listChanged = false;
};

} // namespace

Outcome planCatalogue(const QString &root, const QString &folder, CataloguePlatform platform, const Motifs &motifs,
                      FilePlan &plan)
{
    const QString path = root + u'/' + folder + u'/' + QLatin1StringView(contentsName);
    const Result<QByteArray> bytes = readWholeFile(path, longestList);
    if (!bytes && bytes.failure().code != FailureCode::NotFound)
        return bytes.failure();
    QJsonObject list = bytes ? QJsonDocument::fromJson(bytes.value()).object() : QJsonObject();
    const bool isNew = list[u"images"_s].toArray().isEmpty();
    if (isNew)
        list = {{u"images"_s, newList(platform)}};
    return Filling(folder, motifs, plan).fill(list, isNew);
}

} // namespace lumora
