// SPDX-License-Identifier: MIT
#include "CheckParts.h"
#include "icons/today/AppleSlots.h"
#include "icons/today/ContentsJson.h"

#include <QDir>
#include <QJsonArray>
#include <QSet>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// Levels by which the channels of a gray pixel may differ.
constexpr int grayTolerance = 4;

/// An entry in a catalogue's list.
struct CatalogueEntry
{
    QString idiom;
    QString platform;
    QString file; ///< empty for an empty slot
    QString appearance;
    double points = 0;
    int scale = 1;

    bool isStore() const { return idiom == u"ios-marketing" || idiom == u"watch-marketing" || points == storeIconSize; }
    bool isMac() const { return idiom == u"mac"; }
    int pixels() const { return static_cast<int>(std::lround(points * scale)); }
    QString slot() const
    {
        return QStringList{idiom, platform, appearance, QString::number(points), QString::number(scale)}.join(u' ');
    }
    /// "iphone 60 x 60, 2x"
    QString description() const
    {
        QString text = idiom + u' ' + QString::number(points) + u" x "_s + QString::number(points);
        if (scale > 1)
            text += u", %1x"_s.arg(scale);
        return appearance.isEmpty() ? text : QString(text + u", "_s + appearance);
    }
};

QString appearanceOf(const QJsonObject &image)
{
    const QJsonArray appearances = image[u"appearances"_s].toArray();
    for (const auto &value : appearances) {
        const QJsonObject appearance = value.toObject();
        if (appearance[u"appearance"_s].toString() == u"luminosity")
            return appearance[u"value"_s].toString();
    }
    return {};
}

CatalogueEntry entryOf(const QJsonObject &image)
{
    CatalogueEntry entry;
    entry.idiom = image[u"idiom"_s].toString();
    entry.platform = image[u"platform"_s].toString();
    entry.file = image[u"filename"_s].toString();
    entry.appearance = appearanceOf(image);
    // Slots for a watch also name their role.
    entry.platform += image[u"role"_s].toString() + image[u"subtype"_s].toString();
    entry.points = image[u"size"_s].toString().section(u'x', 0, 0).toDouble();
    entry.scale = std::max(image[u"scale"_s].toString().section(u'x', 0, 0).toInt(), 1);
    return entry;
}

bool isGray(const QImage &picture)
{
    for (int y = 0; y < picture.height(); ++y) {
        const uchar *pixel = picture.constScanLine(y);
        for (int x = 0; x < picture.width(); ++x, pixel += 4) {
            if (std::abs(pixel[0] - pixel[1]) > grayTolerance || std::abs(pixel[1] - pixel[2]) > grayTolerance)
                return false;
        }
    }
    return true;
}

class IconSetCheck
{
public:
    IconSetCheck(const QString &folder, IconCheck &check) : m_folder(folder), m_check(check) {}

    void run()
    {
        const QString contents = m_folder + u'/' + QLatin1StringView(contentsName);
        const std::optional<QJsonObject> list = readJson(contents);
        if (!list || !(*list)[u"images"_s].isArray()) {
            m_check.add(IconRule::ContentsUnreadable, contents);
            return;
        }
        const QJsonArray images = (*list)[u"images"_s].toArray();
        for (const auto &image : images)
            judge(entryOf(image.toObject()), image.toObject()[u"platform"_s].toString());
        if (!m_hasStoreIcon)
            m_check.add(IconRule::StoreIconMissing, m_folder);
        if (m_isIos && (!m_appearances.contains(u"dark"_s) || !m_appearances.contains(u"tinted"_s)))
            m_check.add(IconRule::AppearanceMissing, m_folder);
        reportUnassigned();
    }

private:
    void judge(const CatalogueEntry &entry, const QString &platform)
    {
        if (platform != platform.toLower())
            m_check.add(IconRule::PlatformName, m_folder, platform);
        if (!m_slots.contains(entry.slot()))
            m_slots << entry.slot();
        else if (!entry.file.isEmpty())
            m_check.add(IconRule::DuplicateSlot, m_folder, QString(entry.description() + u": "_s + entry.file));
        m_appearances << entry.appearance;
        if (entry.file.isEmpty()) {
            m_check.add(IconRule::SlotEmpty, m_folder, entry.description());
            return;
        }
        if (!isPlainName(entry.file)) {
            m_check.add(IconRule::FileOutside, m_folder, entry.file);
            return;
        }
        m_assigned << entry.file;
        m_isIos = m_isIos || platform == u"ios";
        judgePicture(entry);
    }

    void judgePicture(const CatalogueEntry &entry)
    {
        const bool plain = entry.appearance.isEmpty() || entry.appearance == u"light";
        m_hasStoreIcon = m_hasStoreIcon || (plain && (entry.isStore() || entry.pixels() == storeIconSize));
        SlotDemands demands;
        demands.size = QSize(entry.pixels(), entry.pixels());
        if (plain && entry.isStore() && !entry.isMac())
            demands.transparency = Transparency::Refused;
        else if (!entry.isMac() && entry.appearance != u"dark")
            demands.transparency = Transparency::Lost;
        const QString path = m_folder + u'/' + entry.file;
        const std::optional<PictureFacts> facts = checkSlot(path, demands, m_check);
        if (facts && entry.appearance == u"tinted")
            checkTinted(*facts, path, m_check);
    }

    void reportUnassigned()
    {
        const QStringList files = QDir(m_folder).entryList(QDir::Files | QDir::Hidden | QDir::NoSymLinks, QDir::Name);
        for (const QString &file : files) {
            if (file != QLatin1StringView(contentsName) && file != u".DS_Store" && !m_assigned.contains(file))
                m_check.add(IconRule::UnassignedFile, m_folder + u'/' + file);
        }
    }

    QString m_folder;
    IconCheck &m_check;
    QSet<QString> m_slots;
    QSet<QString> m_assigned;
    QSet<QString> m_appearances;
    bool m_hasStoreIcon = false;
    bool m_isIos = false;
};

} // namespace

void checkTinted(const PictureFacts &facts, const QString &path, IconCheck &check)
{
    if (!isGray(facts.pixels()))
        check.add(IconRule::TintedColors, path);
}

void checkIconSet(const QString &folder, IconCheck &check)
{
    check.checked << folder;
    IconSetCheck(folder, check).run();
}

} // namespace lumora
