// SPDX-License-Identifier: MIT
#include "ModelFilter.h"

#include "ScreenClass.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

QString text(std::string_view view)
{
    return QString::fromUtf8(view.data(), static_cast<qsizetype>(view.size()));
}

constexpr std::array<ModelCapability, 6> capabilityTable{{
    {"armv7", [](const DeviceModel &model) { return model.arch != "armv6"; }},
    {"arm64", [](const DeviceModel &model) { return model.arm64; }},
    {"metal", [](const DeviceModel &model) { return model.metal; }},
    {"arkit", [](const DeviceModel &model) { return model.arkit; }},
    {"iphone-ipad-minimum-performance-a12", [](const DeviceModel &model) { return model.minimumPerformanceA12; }},
    {"iphone-performance-gaming-tier", [](const DeviceModel &model) { return model.gamingTier; }},
}};

bool isChip(const QString &chip, const QString &wanted)
{
    return shortChipName(chip).compare(shortChipName(wanted), Qt::CaseInsensitive) == 0;
}

bool isSearched(const DeviceModel &model, const QString &search)
{
    const QString texts = text(model.name) + u'\n' + text(model.identifier);
    const QStringList words = search.split(u' ', Qt::SkipEmptyParts);
    return std::ranges::all_of(words,
                               [&texts](const QString &word) { return texts.contains(word, Qt::CaseInsensitive); });
}

using Reasons = std::vector<FallsOutReason>;

void addSystem(Reasons &reasons, const DeviceModel &model, const ModelFilter &filter)
{
    if (filter.iosFrom && comparedVersions(model.maxOs, *filter.iosFrom) < 0)
        reasons.push_back({FallsOut::EndsBefore, versionText(model.maxOs)});
    if (filter.iosTo && comparedVersions(model.minOs, *filter.iosTo) > 0)
        reasons.push_back({FallsOut::BeginsAfter, versionText(model.minOs)});
}

void addScreen(Reasons &reasons, const DeviceModel &model, const ModelFilter &filter)
{
    if (filter.screenClasses.isEmpty())
        return;
    const ScreenClass *screen = screenClassOf(model);
    const QString key = screen == nullptr ? QString() : text(screen->key);
    if (key.isEmpty() || !filter.screenClasses.contains(key))
        reasons.push_back({FallsOut::OtherScreen, key});
}

void addFeatures(Reasons &reasons, const DeviceModel &model, const ModelFilter &filter)
{
    for (const ModelFeature feature : filter.features) {
        const Having having = havingOf(model, feature);
        if (having != Having::Yes)
            reasons.push_back(
                {having == Having::No ? FallsOut::LacksFeature : FallsOut::UnknownFeature, featureKey(feature)});
    }
}

} // namespace

std::span<const ModelCapability> modelCapabilities()
{
    return capabilityTable;
}

const ModelCapability *modelCapability(QStringView key)
{
    const auto *found =
        std::ranges::find_if(capabilityTable, [key](const ModelCapability &one) { return key == text(one.key); });
    return found == capabilityTable.end() ? nullptr : found;
}

QString shortChipName(const QString &chip)
{
    for (const auto family : {" Bionic"_L1, " Fusion"_L1}) {
        if (chip.endsWith(family, Qt::CaseInsensitive))
            return chip.chopped(family.size());
    }
    return chip;
}

QString featureKey(ModelFeature feature)
{
    const std::array keys = {u"dynamic-island"_s, u"lidar"_s, u"usb-c"_s, u"5g"_s};
    return keys[static_cast<std::size_t>(feature)];
}

Having havingOf(const DeviceModel &model, ModelFeature feature)
{
    switch (feature) {
    case ModelFeature::DynamicIsland:
        return model.dynamicIsland;
    case ModelFeature::Lidar:
        return model.lidar;
    case ModelFeature::UsbC:
        return model.usbC;
    case ModelFeature::Cellular5G:
        break;
    }
    return model.cellular5G;
}

std::vector<FallsOutReason> reasonsAgainst(const DeviceModel &model, const ModelFilter &filter)
{
    Reasons reasons;
    // Versions and capabilities of another device say nothing of these models.
    if (!filter.otherDevice.isEmpty())
        return {{FallsOut::OtherDevice, filter.otherDevice}};
    addSystem(reasons, model, filter);
    if (!filter.families.empty() && !filter.families.contains(familyOf(model)))
        reasons.push_back({FallsOut::OtherFamily, text(familyName(familyOf(model)))});
    if (!filter.chips.isEmpty()) {
        const QString chip = text(model.chip);
        if (std::ranges::none_of(filter.chips, [&chip](const QString &wanted) { return isChip(chip, wanted); }))
            reasons.push_back({FallsOut::OtherChip, chip});
    }
    for (const ModelCapability *capability : filter.capabilities) {
        if (!capability->has(model))
            reasons.push_back({FallsOut::Lacks, text(capability->key)});
    }
    addScreen(reasons, model, filter);
    if (!filter.biometries.empty() && !filter.biometries.contains(model.biometry))
        reasons.push_back({FallsOut::OtherBiometry, text(biometryKey(model.biometry))});
    addFeatures(reasons, model, filter);
    if (!filter.search.isEmpty() && !isSearched(model, filter.search))
        reasons.push_back({FallsOut::NotSearched, {}});
    return reasons;
}

QString reasonText(const FallsOutReason &reason)
{
    switch (reason.reason) {
    case FallsOut::EndsBefore:
        return u"ends at iOS "_s + reason.detail;
    case FallsOut::BeginsAfter:
        return u"begins with iOS "_s + reason.detail;
    case FallsOut::OtherDevice:
        return u"the app is for "_s + reason.detail;
    case FallsOut::OtherFamily:
        return u"is an "_s + reason.detail;
    case FallsOut::OtherChip:
        return u"has the chip "_s + reason.detail;
    case FallsOut::Lacks:
    case FallsOut::LacksFeature:
        return u"lacks "_s + reason.detail;
    case FallsOut::OtherScreen:
        return reason.detail.isEmpty() ? u"its screen is not known"_s
                                       : QString(u"has a screen of class "_s + reason.detail);
    case FallsOut::OtherBiometry:
        return reason.detail == u"unknown" ? u"its biometry is not known"_s
                                           : QString(u"has the biometry "_s + reason.detail);
    case FallsOut::UnknownFeature:
        return u"not known whether it has "_s + reason.detail;
    case FallsOut::NotSearched:
        break;
    }
    return u"does not match the search"_s;
}

bool takeIosRange(QStringView text, ModelFilter &filter)
{
    const qsizetype dots = text.indexOf(u".."_s);
    const QStringView first = dots < 0 ? text : text.first(dots);
    const QStringView last = dots < 0 ? text : text.sliced(dots + 2);
    const std::optional<OsVersion> from = osVersion(first);
    const std::optional<OsVersion> to = osVersion(last);
    if ((!from && !first.isEmpty()) || (!to && !last.isEmpty()) || (!from && !to))
        return false;
    if (from && to && comparedVersions(*from, *to) > 0)
        return false;
    filter.iosFrom = from;
    filter.iosTo = to;
    return true;
}

ModelFilter filterOf(const QString &minimumSystem, bool padOnly, const QStringList &capabilities)
{
    ModelFilter filter;
    if (!minimumSystem.isEmpty())
        takeIosRange(QString(minimumSystem + u".."_s), filter);
    if (padOnly)
        filter.families = {DeviceFamily::IPad};
    for (const QString &key : capabilities) {
        if (const ModelCapability *capability = modelCapability(key))
            filter.capabilities.push_back(capability);
    }
    return filter;
}

int modelsRunning(std::span<const DeviceModel> models, const OsVersion &version)
{
    return static_cast<int>(std::ranges::count_if(
        models, [&version](const DeviceModel &model) { return comparedVersions(model.maxOs, version) >= 0; }));
}

} // namespace lumora
