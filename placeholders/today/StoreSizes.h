// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1StringView>
#include <QSize>
#include <QStringView>

#include <span>
#include <vector>

namespace lumora
{

/// A size that a store or a site requires, and its name there.
struct StoreSize
{
    QSize size; ///< in pixels
    QLatin1StringView use;
};

/// A set of pictures that are made together.
struct StoreSet
{
    /// Its word on the command line.
    QLatin1StringView name;
    std::span<const StoreSize> sizes;
    /// Whether every size is also made in landscape.
    bool bothWays = false;
};

/// The sets app-store, play, feature-graphic, tv, watch, social and launch.
std::span<const StoreSet> storeSets();
const StoreSet *storeSetNamed(QStringView name);

/// All pictures of the set, no size twice, portrait before landscape.
std::vector<StoreSize> picturesOf(const StoreSet &set);

/// A class of screens for which the App Store accepts screenshots, and their sizes in portrait.
struct ScreenshotSlot
{
    QLatin1StringView name; ///< "iPhone 6.9\""
    enum class Device { IPhone, IPad, Mac, Watch, Television } device;
    std::span<const StoreSize> sizes;
    /// Whether the store requires this slot; the others are scaled from it.
    bool required = false;
};

std::span<const ScreenshotSlot> screenshotSlots();

/// The slot for a screenshot of the size, in portrait or landscape; null if there is none.
const ScreenshotSlot *screenshotSlotOf(QSize pixels);

} // namespace lumora
