// SPDX-License-Identifier: MIT
#include "StoreSizes.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

// App Store: the sizes that fastlane's deliver accepts (app_screenshot.rb at d5347690d) if guides of 2026 agree.
// Screens of four inches and less are left out, since only old apps need them.
constexpr std::array<StoreSize, 3> iphone69{
    {{{1260, 2736}, "iPhone 6.9\""_L1}, {{1290, 2796}, "iPhone 6.9\""_L1}, {{1320, 2868}, "iPhone 6.9\""_L1}}};
constexpr std::array<StoreSize, 2> iphone65{{{{1242, 2688}, "iPhone 6.5\""_L1}, {{1284, 2778}, "iPhone 6.5\""_L1}}};
constexpr std::array<StoreSize, 2> iphone63{{{{1179, 2556}, "iPhone 6.3\""_L1}, {{1206, 2622}, "iPhone 6.3\""_L1}}};
constexpr std::array<StoreSize, 3> iphone61{
    {{{1080, 2340}, "iPhone 6.1\""_L1}, {{1125, 2436}, "iPhone 6.1\""_L1}, {{1170, 2532}, "iPhone 6.1\""_L1}}};
constexpr std::array<StoreSize, 1> iphone55{{{{1242, 2208}, "iPhone 5.5\""_L1}}};
constexpr std::array<StoreSize, 1> iphone47{{{{750, 1334}, "iPhone 4.7\""_L1}}};
constexpr std::array<StoreSize, 2> iphone40{{{{640, 1096}, "iPhone 4\""_L1}, {{640, 1136}, "iPhone 4\""_L1}}};
constexpr std::array<StoreSize, 2> iphone35{{{{640, 920}, "iPhone 3.5\""_L1}, {{640, 960}, "iPhone 3.5\""_L1}}};
constexpr std::array<StoreSize, 2> ipad13{{{{2064, 2752}, "iPad 13\""_L1}, {{2048, 2732}, "iPad 13\""_L1}}};
constexpr std::array<StoreSize, 4> ipad11{{{{1668, 2420}, "iPad 11\""_L1},
                                           {{1668, 2388}, "iPad 11\""_L1},
                                           {{1640, 2360}, "iPad 11\""_L1},
                                           {{1488, 2266}, "iPad 11\""_L1}}};
constexpr std::array<StoreSize, 1> ipad105{{{{1668, 2224}, "iPad 10.5\""_L1}}};
constexpr std::array<StoreSize, 4> ipad97{{{{1536, 2048}, "iPad 9.7\""_L1},
                                           {{1536, 2008}, "iPad 9.7\""_L1},
                                           {{768, 1024}, "iPad 9.7\""_L1},
                                           {{768, 1004}, "iPad 9.7\""_L1}}};
constexpr std::array<StoreSize, 4> mac{
    {{{1280, 800}, "Mac"_L1}, {{1440, 900}, "Mac"_L1}, {{2560, 1600}, "Mac"_L1}, {{2880, 1800}, "Mac"_L1}}};
constexpr std::array<StoreSize, 6> watch{{{{422, 514}, "Apple Watch Ultra 3"_L1},
                                          {{410, 502}, "Apple Watch Ultra"_L1},
                                          {{416, 496}, "Apple Watch Series 10"_L1},
                                          {{396, 484}, "Apple Watch Series 7"_L1},
                                          {{368, 448}, "Apple Watch Series 4"_L1},
                                          {{312, 390}, "Apple Watch Series 3"_L1}}};
constexpr std::array<StoreSize, 2> television{
    {{{1920, 1080}, "Apple TV"_L1}, {{3840, 2160}, "Apple TV, Vision Pro"_L1}}};

using Device = ScreenshotSlot::Device;
constexpr std::array<ScreenshotSlot, 15> slotTable{{{"iPhone 6.9\""_L1, Device::IPhone, iphone69, true},
                                                    {"iPhone 6.5\""_L1, Device::IPhone, iphone65, true},
                                                    {"iPhone 6.3\""_L1, Device::IPhone, iphone63},
                                                    {"iPhone 6.1\""_L1, Device::IPhone, iphone61},
                                                    {"iPhone 5.5\""_L1, Device::IPhone, iphone55},
                                                    {"iPhone 4.7\""_L1, Device::IPhone, iphone47},
                                                    {"iPhone 4\""_L1, Device::IPhone, iphone40},
                                                    {"iPhone 3.5\""_L1, Device::IPhone, iphone35},
                                                    {"iPad 13\""_L1, Device::IPad, ipad13, true},
                                                    {"iPad 11\""_L1, Device::IPad, ipad11},
                                                    {"iPad 10.5\""_L1, Device::IPad, ipad105},
                                                    {"iPad 9.7\""_L1, Device::IPad, ipad97},
                                                    {"Mac"_L1, Device::Mac, mac},
                                                    {"Apple Watch"_L1, Device::Watch, watch},
                                                    {"Apple TV"_L1, Device::Television, television}}};

constexpr std::array<StoreSize, 24> appStore{
    {iphone69[0], iphone69[1], iphone69[2], iphone65[0], iphone65[1], iphone63[0], iphone63[1], iphone61[0],
     iphone61[1], iphone61[2], iphone55[0], iphone47[0], ipad13[0],   ipad13[1],   ipad11[0],   ipad11[1],
     ipad11[2],   ipad11[3],   ipad105[0],  ipad97[0],   mac[0],      mac[1],      mac[2],      mac[3]}};

// Play: support.google.com/googleplay/android-developer, "Add preview assets".
constexpr std::array<StoreSize, 4> play{{{{1080, 1920}, "phone"_L1},
                                         {{1920, 1080}, "phone, across"_L1},
                                         {{1200, 1920}, "tablet of 7\""_L1},
                                         {{1600, 2560}, "tablet of 10\""_L1}}};
constexpr std::array<StoreSize, 1> featureGraphic{{{{1024, 500}, "Play feature graphic"_L1}}};

// No source: sizes in common use for cards and posts, not read from any site's own page. When one is confirmed or
// corrected, this is the only table to change.
constexpr std::array<StoreSize, 8> social{{{{1200, 630}, "Open Graph card"_L1},
                                           {{1200, 600}, "large card of 2:1"_L1},
                                           {{1280, 640}, "repository card"_L1},
                                           {{1280, 720}, "video thumbnail"_L1},
                                           {{1080, 1080}, "square post"_L1},
                                           {{1080, 1350}, "upright post"_L1},
                                           {{1080, 1920}, "story"_L1},
                                           {{1000, 1500}, "pin"_L1}}};

// The screens of iPhones and iPads since iOS 9, which a web app's startup images fill; Android's splash pictures by
// bucket, and the square that a storyboard crops, both as in capacitor-assets; the canvas of the icon that Android 12
// and later show, 288 dp, and 240 dp on a ground of its own, at the density of xxxhdpi.
constexpr std::array<StoreSize, 30> launch{{{{1320, 2868}, "iPhone"_L1},
                                            {{1290, 2796}, "iPhone"_L1},
                                            {{1284, 2778}, "iPhone"_L1},
                                            {{1260, 2736}, "iPhone"_L1},
                                            {{1242, 2688}, "iPhone"_L1},
                                            {{1206, 2622}, "iPhone"_L1},
                                            {{1179, 2556}, "iPhone"_L1},
                                            {{1170, 2532}, "iPhone"_L1},
                                            {{1125, 2436}, "iPhone"_L1},
                                            {{1242, 2208}, "iPhone"_L1},
                                            {{828, 1792}, "iPhone"_L1},
                                            {{750, 1334}, "iPhone"_L1},
                                            {{640, 1136}, "iPhone"_L1},
                                            {{2064, 2752}, "iPad"_L1},
                                            {{2048, 2732}, "iPad"_L1},
                                            {{1668, 2420}, "iPad"_L1},
                                            {{1668, 2388}, "iPad"_L1},
                                            {{1668, 2224}, "iPad"_L1},
                                            {{1640, 2360}, "iPad"_L1},
                                            {{1620, 2160}, "iPad"_L1},
                                            {{1536, 2048}, "iPad"_L1},
                                            {{1488, 2266}, "iPad"_L1},
                                            {{320, 480}, "Android mdpi"_L1},
                                            {{480, 800}, "Android hdpi"_L1},
                                            {{720, 1280}, "Android xhdpi"_L1},
                                            {{960, 1600}, "Android xxhdpi"_L1},
                                            {{1280, 1920}, "Android xxxhdpi"_L1},
                                            {{2732, 2732}, "storyboard"_L1},
                                            {{1152, 1152}, "Android 12"_L1},
                                            {{960, 960}, "Android 12, on a ground"_L1}}};

constexpr std::array<StoreSet, 7> sets{{{"app-store"_L1, appStore},
                                        {"play"_L1, play},
                                        {"feature-graphic"_L1, featureGraphic},
                                        {"tv"_L1, television},
                                        {"watch"_L1, watch},
                                        {"social"_L1, social},
                                        {"launch"_L1, launch, true}}};

} // namespace

std::span<const StoreSet> storeSets()
{
    return sets;
}

const StoreSet *storeSetNamed(QStringView name)
{
    const auto *found = std::ranges::find_if(sets, [name](const StoreSet &set) { return name == set.name; });
    return found == sets.end() ? nullptr : found;
}

std::vector<StoreSize> picturesOf(const StoreSet &set)
{
    std::vector<StoreSize> pictures(set.sizes.begin(), set.sizes.end());
    if (set.bothWays) {
        for (const StoreSize &one : set.sizes) {
            if (one.size.width() != one.size.height())
                pictures.push_back({one.size.transposed(), one.use});
        }
    }
    return pictures;
}

std::span<const ScreenshotSlot> screenshotSlots()
{
    return slotTable;
}

const ScreenshotSlot *screenshotSlotOf(QSize pixels)
{
    const auto takes = [pixels](const ScreenshotSlot &slot) {
        return std::ranges::any_of(slot.sizes, [&](const StoreSize &one) {
            const bool turns = slot.device == Device::IPhone || slot.device == Device::IPad;
            return one.size == pixels || (turns && one.size.transposed() == pixels);
        });
    };
    const auto *found = std::ranges::find_if(slotTable, takes);
    return found == slotTable.end() ? nullptr : found;
}

} // namespace lumora
