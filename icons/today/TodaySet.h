// SPDX-License-Identifier: MIT
#pragma once

#include <array>

namespace lumora
{

/// The sets that stores and platforms want now. The classic ones are in `IconCatalogue.h` and do not change.
enum class TodaySet { Ios, MacOs, WatchOs, Adaptive, Web, Windows, Linux, TvOs, VisionOs, IconComposer };

/// The fixed facts of a set.
struct TodaySetInfo
{
    TodaySet set;
    const char *commandName; ///< its name on the command line
    const char *folder;      ///< its folder in the export folder; several sets may share one
    bool isCommon;           ///< whether "today" includes it
    bool needsLayers;        ///< whether it is made from two to five layers
};

/// All sets, in the order of writing.
inline constexpr std::array<TodaySetInfo, 10> todaySets = {{
    {TodaySet::Ios, "ios", "iOS", true, false},
    {TodaySet::MacOs, "macos", "macOS", true, false},
    {TodaySet::WatchOs, "watchos", "watchOS", true, false},
    {TodaySet::Adaptive, "adaptive", "Android", true, false},
    {TodaySet::Web, "web", "Web", true, false},
    {TodaySet::Windows, "windows", "Windows", true, false},
    {TodaySet::Linux, "linux", "Linux", true, false},
    {TodaySet::TvOs, "tvos", "tvOS", false, true},
    {TodaySet::VisionOs, "visionos", "visionOS", false, true},
    {TodaySet::IconComposer, "icon-composer", "IconComposer", false, false},
}};

constexpr const TodaySetInfo &infoOf(TodaySet set)
{
    return todaySets[static_cast<std::size_t>(set)];
}

/// The name on the command line for all common sets.
inline constexpr char commonSetsName[] = "today";

inline constexpr int fewestLayers = 2;
inline constexpr int mostLayers = 5;

} // namespace lumora
