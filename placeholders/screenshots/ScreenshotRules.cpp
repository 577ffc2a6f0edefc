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
    PlayPng24,
    Nothing,
};

constexpr std::array<ScreenshotRule, 18> rules{{
    {"screenshot.unreadable"_L1, Severity::Error, "SHOT_RULE_SCREENSHOT_UNREADABLE", "SHOT_FIX_SCREENSHOT_UNREADABLE"},
    {"screenshot.format"_L1, Severity::Error, "SHOT_RULE_SCREENSHOT_FORMAT", "SHOT_FIX_SCREENSHOT_FORMAT"},
    {"screenshot.alpha"_L1, Severity::Error, "SHOT_RULE_SCREENSHOT_ALPHA", "SHOT_FIX_SCREENSHOT_ALPHA"},
    {"screenshot.rgb"_L1, Severity::Error, "SHOT_RULE_SCREENSHOT_RGB", "SHOT_FIX_SCREENSHOT_RGB"},
    {"screenshot.size"_L1, Severity::Error, "SHOT_RULE_SCREENSHOT_SIZE", "SHOT_FIX_SCREENSHOT_SIZE"},
    {"appstore.size"_L1, Severity::Error, "SHOT_RULE_APPSTORE_SIZE", "SHOT_FIX_APPSTORE_SIZE"},
    {"appstore.count"_L1, Severity::Error, "SHOT_RULE_APPSTORE_COUNT", "SHOT_FIX_APPSTORE_COUNT"},
    {"appstore.iphone"_L1, Severity::Error, "SHOT_RULE_APPSTORE_IPHONE", "SHOT_FIX_APPSTORE_IPHONE"},
    {"appstore.ipad"_L1, Severity::Error, "SHOT_RULE_APPSTORE_IPAD", "SHOT_FIX_APPSTORE_IPAD"},
    {"play.side"_L1, Severity::Error, "SHOT_RULE_PLAY_SIDE", "SHOT_FIX_PLAY_SIDE"},
    {"play.ratio"_L1, Severity::Error, "SHOT_RULE_PLAY_RATIO", "SHOT_FIX_PLAY_RATIO"},
    {"play.fewest"_L1, Severity::Error, "SHOT_RULE_PLAY_FEWEST", "SHOT_FIX_PLAY_FEWEST"},
    {"play.most"_L1, Severity::Error, "SHOT_RULE_PLAY_MOST", "SHOT_FIX_PLAY_MOST"},
    {"play.promotion"_L1, Severity::Note, "SHOT_RULE_PLAY_PROMOTION", "SHOT_FIX_PLAY_PROMOTION"},
    {"play.tablet"_L1, Severity::Note, "SHOT_RULE_PLAY_TABLET", "SHOT_FIX_PLAY_TABLET"},
    {"play.feature-graphic"_L1, Severity::Error, "SHOT_RULE_PLAY_FEATURE_GRAPHIC", "SHOT_FIX_PLAY_FEATURE_GRAPHIC"},
    {"play.png-24"_L1, Severity::Warning, "SHOT_RULE_PLAY_PNG_24", "SHOT_FIX_PLAY_PNG_24"},
    {"screenshot.none"_L1, Severity::Error, "SHOT_RULE_SCREENSHOT_NONE", "SHOT_FIX_SCREENSHOT_NONE"},
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
            add(Alpha, facts.path, "SHOT_HAS_ALPHA");
        if (!facts.isRgb)
            add(Rgb, facts.path, "SHOT_OTHER_CHANNELS");
        judgeSize(facts);
    }

    void judgeFolders()
    {
        for (const auto &[slot, paths] : m_slots) {
            if (paths.size() > mostInSlot)
                add(AppStoreCount, slot.first,
                    {"SHOT_COUNT_OF",
                     {{"[COUNT]", QString::number(paths.size())}, {"[SCREEN]", QString(slot.second->name)}}});
        }
        for (const auto &[folder, devices] : m_devices) {
            if (devices.contains(Device::IPhone) && !m_required[folder].contains(Device::IPhone))
                add(AppStoreIPhone, folder, "SHOT_SMALLER_ONLY");
            if (devices.contains(Device::IPad) && !m_required[folder].contains(Device::IPad))
                add(AppStoreIPad, folder, "SHOT_SMALLER_ONLY");
        }
        for (const auto &[folder, sizes] : m_play)
            judgePlayFolder(folder, sizes);
    }

    std::vector<ScreenshotFinding> findings() && { return std::move(m_findings); }

    void add(Rule rule, const QString &path, const FailureDetail &evidence)
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
                add(PlayFeature, facts.path, pixelsDetail(facts.size));
            judgePixels(facts);
            return;
        }
        if (isPlayFolder(folder)) {
            judgeForPlay(facts, folder);
            return;
        }
        const ScreenshotSlot *slot = screenshotSlotOf(facts.size);
        const bool fitsPlay = hasPlaySides(facts.size) && hasPlayRatio(facts.size);
        if (m_stores.empty() && slot == nullptr && !fitsPlay)
            add(NoStore, facts.path, pixelsDetail(facts.size));
        else if (slot != nullptr && asks(ScreenshotStore::AppStore))
            takeForAppStore(*slot, folder, facts.path);
        else if (m_stores.contains(ScreenshotStore::AppStore))
            add(AppStoreSize, facts.path, pixelsDetail(facts.size));
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
            add(PlaySide, facts.path, pixelsDetail(facts.size));
        if (!hasPlayRatio(facts.size))
            add(PlayRatio, facts.path, pixelsDetail(facts.size));
        judgePixels(facts);
        m_play[folder].push_back(facts.size);
    }

    /// Google asks for PNG files of 24 bits a pixel; whether it refuses others, its help does not say.
    void judgePixels(const ScreenshotFacts &facts)
    {
        if (facts.hasPalette || facts.isDeep)
            add(PlayPng24, facts.path, facts.hasPalette ? "DETAIL_PALETTE" : "DETAIL_16_BITS");
    }

    void judgePlayFolder(const QString &folder, const std::vector<QSize> &sizes)
    {
        const int count = static_cast<int>(sizes.size());
        const FailureDetail evidence =
            count == 1 ? FailureDetail("SHOT_ONE") : FailureDetail("SHOT_COUNT", {{"[COUNT]", QString::number(count)}});
        if (count < fewestOnPlay)
            add(PlayFewest, folder, evidence);
        if (count > mostOnPlay)
            add(PlayMost, folder, evidence);
        if (isTabletFolder(folder)) {
            if (count < advisedForTablets)
                add(PlayTablet, folder, evidence);
        } else if (std::ranges::none_of(sizes, isPromoted)) {
            add(PlayPromotion, folder, pixelsDetail(sizes.front()));
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

const char *severityKey(ScreenshotSeverity severity)
{
    constexpr std::array<const char *, 3> keys{"SHOT_ERROR", "SHOT_WARNING", "SHOT_NOTE"};
    return keys[static_cast<std::size_t>(severity)];
}

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
        judgement.add(Nothing, {}, "SHOT_NO_PICTURE");
    return std::move(judgement).findings();
}

} // namespace lumora
