// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1StringView>
#include <QSize>
#include <QStringView>

#include <span>
#include <vector>

namespace lumora
{

/// A size that a store or a site wants, and what it calls it.
struct StoreSize
{
    QSize size; ///< in pixels
    QLatin1StringView use;
};

/// Pictures that are made together.
struct StoreSet
{
    /// The word for it on the command line.
    QLatin1StringView name;
    std::span<const StoreSize> sizes;
    /// Whether every size is wanted lying on its side, too.
    bool bothWays = false;
};

/// app-store, play, feature-graphic, tv, watch, social, launch.
std::span<const StoreSet> storeSets();
const StoreSet *storeSetNamed(QStringView name);

/// All pictures of the set, no size twice, upright before across.
std::vector<StoreSize> picturesOf(const StoreSet &set);

/// A class of screens that the App Store takes screenshots for, and their sizes upright.
struct ScreenshotSlot
{
    QLatin1StringView name; ///< "iPhone 6.9\""
    enum class Device { IPhone, IPad, Mac, Watch, Television } device;
    std::span<const StoreSize> sizes;
    /// Whether screenshots of the device need this slot; the others are scaled from it.
    bool required = false;
};

std::span<const ScreenshotSlot> screenshotSlots();

/// The slot that takes a screenshot of the size, upright or across; null where none does.
const ScreenshotSlot *screenshotSlotOf(QSize pixels);

} // namespace lumora
