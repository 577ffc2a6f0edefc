// SPDX-License-Identifier: MIT
#include "ScreenshotRules.h"

#include "pictures/pixels/SizeText.h"
#include "placeholders/today/StoreSizes.h"

#include <algorithm>
#include <array>
#include <map>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

using Severity = ScreenshotSeverity;
using Device = ScreenshotSlot::Device;

enum Rule : std::size_t {
    Unreadable,
    Format,
    Alpha,
    Rgb,
    NoStore,
    AppStoreSize,
    AppStoreCount,
    AppStoreIPhone,
    AppStoreIPad,
    PlaySide,
    PlayRatio,
    PlayFewest,
    PlayMost,
    PlayPromotion,
    PlayTablet,
    PlayFeature,
    Nothing,
};

constexpr std::array<ScreenshotRule, 17> rules{{
    {"screenshot.unreadable"_L1, Severity::Error, "The file is no picture that can be read"_L1,
     "Save it again as PNG or JPEG"_L1},
    {"screenshot.format"_L1, Severity::Error, "Stores take PNG and JPEG only"_L1, "Save it as PNG"_L1},
    {"screenshot.alpha"_L1, Severity::Error, "A screenshot may have no alpha channel"_L1,
     "Save it without transparency, even where every pixel is opaque"_L1},
    {"screenshot.rgb"_L1, Severity::Error, "A screenshot has to be in RGB"_L1,
     "Convert it from inks or shades of gray to RGB"_L1},
    {"screenshot.size"_L1, Severity::Error, "The size is one that neither store takes"_L1,
     "Take it on a device or simulator of a size in the stores' lists"_L1},
    {"appstore.size"_L1, Severity::Error, "The App Store takes no screenshot of this size"_L1,
     "Take it on a device or simulator of a size in the store's list, such as 1320 x 2868 or 2064 x 2752"_L1},
    {"appstore.count"_L1, Severity::Error, "The App Store takes ten screenshots of a screen size"_L1,
     "Leave the others out"_L1},
    {"appstore.iphone"_L1, Severity::Error, "iPhone screenshots are wanted at 6.9 inches, or else at 6.5"_L1,
     "Add screenshots of 1320 x 2868, 1290 x 2796 or 1260 x 2736 pixels; the store scales them for the others"_L1},
    {"appstore.ipad"_L1, Severity::Error, "iPad screenshots are wanted at 13 inches"_L1,
     "Add screenshots of 2064 x 2752 or 2048 x 2732 pixels; the store scales them for the others"_L1},
    {"play.side"_L1, Severity::Error, "Play wants each side to have 320 to 3840 pixels"_L1,
     "Scale it, or take it on another device"_L1},
    {"play.ratio"_L1, Severity::Error, "Play wants the long side to be at most twice the short one"_L1,
     "Crop it, or take it on a device of another shape"_L1},
    {"play.fewest"_L1, Severity::Error, "Play wants two screenshots at least"_L1, "Add another"_L1},
    {"play.most"_L1, Severity::Error, "Play takes eight screenshots of a kind of device"_L1, "Leave the others out"_L1},
    {"play.promotion"_L1, Severity::Note, "Play promotes apps with screenshots of 1080 pixels and 16:9"_L1,
     "Add screenshots of 1080 x 1920 or 1920 x 1080 pixels"_L1},
    {"play.tablet"_L1, Severity::Note, "Play advises four screenshots or more of a tablet"_L1, "Add others"_L1},
    {"play.feature-graphic"_L1, Severity::Error, "The feature graphic has to be 1024 x 500 pixels"_L1,
     "Draw it in that size"_L1},
    {"screenshot.none"_L1, Severity::Error, "There is no picture in the folder"_L1,
     "Name the folder that holds the screenshots"_L1},
}};

constexpr int fewestOnPlay = 2;
constexpr int mostOnPlay = 8;
constexpr int advisedForTablets = 4;
constexpr int mostInSlot = 10;
constexpr int shortestSide = 320;
constexpr int longestSide = 3840;

QString folderOf(const QString &path)
{
    return path.left(std::max<qsizetype>(path.lastIndexOf(u'/'), 0));
}

bool isFeatureGraphic(const QString &path)
{
    return path.sliced(path.lastIndexOf(u'/') + 1).startsWith("featureGraphic"_L1, Qt::CaseInsensitive);
}

bool isTabletFolder(const QString &folder)
{
    return folder.endsWith("sevenInchScreenshots"_L1) || folder.endsWith("tenInchScreenshots"_L1);
}

/// Folders that are named for Play's kinds of devices.
bool isPlayFolder(const QString &folder)
{
    return isTabletFolder(folder) || folder.endsWith("phoneScreenshots"_L1) || folder.endsWith("tvScreenshots"_L1) ||
           folder.endsWith("wearScreenshots"_L1);
}

bool hasPlaySides(QSize size)
{
    return std::min(size.width(), size.height()) >= shortestSide &&
           std::max(size.width(), size.height()) <= longestSide;
}

bool hasPlayRatio(QSize size)
{
    return std::max(size.width(), size.height()) <= 2 * std::min(size.width(), size.height());
}

bool isPromoted(QSize size)
{
    return size == QSize(1080, 1920) || size == QSize(1920, 1080);
}

class Judgement
{
public:
    Judgement(const std::set<ScreenshotStore> &stores) : m_stores(stores) {}

    void judge(const ScreenshotFacts &facts)
    {
        if (facts.size.isEmpty()) {
            add(Unreadable, facts.path, {});
            return;
        }
        if (facts.format != "png" && facts.format != "jpeg")
            add(Format, facts.path, QString::fromLatin1(facts.format));
        if (facts.hasAlpha)
            add(Alpha, facts.path, u"it has an alpha channel"_s);
        if (!facts.isRgb)
            add(Rgb, facts.path, u"it has other channels"_s);
        judgeSize(facts);
    }

    void judgeFolders()
    {
        for (const auto &[slot, paths] : m_slots) {
            if (paths.size() > mostInSlot)
                add(AppStoreCount, slot.first, u"%1 of %2"_s.arg(paths.size()).arg(QString(slot.second->name)));
        }
        for (const auto &[folder, devices] : m_devices) {
            if (devices.contains(Device::IPhone) && !m_required[folder].contains(Device::IPhone))
                add(AppStoreIPhone, folder, u"smaller screens only"_s);
            if (devices.contains(Device::IPad) && !m_required[folder].contains(Device::IPad))
                add(AppStoreIPad, folder, u"smaller screens only"_s);
        }
        for (const auto &[folder, sizes] : m_play)
            judgePlayFolder(folder, sizes);
    }

    std::vector<ScreenshotFinding> findings() && { return std::move(m_findings); }

    void add(Rule rule, const QString &path, const QString &evidence)
    {
        m_findings.push_back({&rules[rule], path, evidence});
    }

private:
    bool asks(ScreenshotStore store) const { return m_stores.empty() || m_stores.contains(store); }

    void judgeSize(const ScreenshotFacts &facts)
    {
        const QString folder = folderOf(facts.path);
        if (isFeatureGraphic(facts.path)) {
            if (facts.size != QSize(1024, 500))
                add(PlayFeature, facts.path, pixelsText(facts.size));
            return;
        }
        if (isPlayFolder(folder)) {
            judgeForPlay(facts, folder);
            return;
        }
        const ScreenshotSlot *slot = screenshotSlotOf(facts.size);
        const bool fitsPlay = hasPlaySides(facts.size) && hasPlayRatio(facts.size);
        if (m_stores.empty() && slot == nullptr && !fitsPlay)
            add(NoStore, facts.path, pixelsText(facts.size));
        else if (slot != nullptr && asks(ScreenshotStore::AppStore))
            takeForAppStore(*slot, folder, facts.path);
        else if (m_stores.contains(ScreenshotStore::AppStore))
            add(AppStoreSize, facts.path, pixelsText(facts.size));
        if (m_stores.contains(ScreenshotStore::Play) || (m_stores.empty() && slot == nullptr && fitsPlay))
            judgeForPlay(facts, folder);
    }

    void takeForAppStore(const ScreenshotSlot &slot, const QString &folder, const QString &path)
    {
        m_slots[{folder, &slot}].push_back(path);
        m_devices[folder].insert(slot.device);
        if (slot.required)
            m_required[folder].insert(slot.device);
    }

    void judgeForPlay(const ScreenshotFacts &facts, const QString &folder)
    {
        if (!hasPlaySides(facts.size))
            add(PlaySide, facts.path, pixelsText(facts.size));
        if (!hasPlayRatio(facts.size))
            add(PlayRatio, facts.path, pixelsText(facts.size));
        m_play[folder].push_back(facts.size);
    }

    void judgePlayFolder(const QString &folder, const std::vector<QSize> &sizes)
    {
        const int count = static_cast<int>(sizes.size());
        const QString evidence = count == 1 ? u"1 screenshot"_s : u"%1 screenshots"_s.arg(count);
        if (count < fewestOnPlay)
            add(PlayFewest, folder, evidence);
        if (count > mostOnPlay)
            add(PlayMost, folder, evidence);
        if (isTabletFolder(folder)) {
            if (count < advisedForTablets)
                add(PlayTablet, folder, evidence);
        } else if (std::ranges::none_of(sizes, isPromoted)) {
            add(PlayPromotion, folder, pixelsText(sizes.front()));
        }
    }

    const std::set<ScreenshotStore> &m_stores;
    std::vector<ScreenshotFinding> m_findings;
    std::map<std::pair<QString, const ScreenshotSlot *>, QStringList> m_slots;
    std::map<QString, std::set<Device>> m_devices;
    std::map<QString, std::set<Device>> m_required;
    std::map<QString, std::vector<QSize>> m_play;
};

} // namespace

std::span<const ScreenshotRule> screenshotRules()
{
    return rules;
}

std::vector<ScreenshotFinding> screenshotFindings(const std::vector<ScreenshotFacts> &screenshots,
                                                  const std::set<ScreenshotStore> &stores)
{
    Judgement judgement(stores);
    for (const ScreenshotFacts &facts : screenshots)
        judgement.judge(facts);
    judgement.judgeFolders();
    if (screenshots.empty())
        judgement.add(Nothing, {}, u"no picture"_s);
    return std::move(judgement).findings();
}

} // namespace lumora
