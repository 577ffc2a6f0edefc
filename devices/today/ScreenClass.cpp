// SPDX-License-Identifier: MIT
#include "ScreenClass.h"

#include <algorithm>
#include <array>

namespace lumora
{

namespace
{

using Sizes = std::span<const QSize>;

// The sizes that the store accepts. Source: fastlane's deliver (app_screenshot.rb at d5347690d) and guides of 2026 that
// agree with it.
constexpr std::array points69 = {QSize(440, 956), QSize(430, 932), QSize(420, 912)};
constexpr std::array shots69 = {QSize(1260, 2736), QSize(1290, 2796), QSize(1320, 2868)};
constexpr std::array points65 = {QSize(414, 896), QSize(428, 926)};
constexpr std::array shots65 = {QSize(1242, 2688), QSize(1284, 2778)};
constexpr std::array points63 = {QSize(402, 874), QSize(393, 852)};
constexpr std::array shots63 = {QSize(1179, 2556), QSize(1206, 2622)};
constexpr std::array points61 = {QSize(390, 844), QSize(375, 812)};
constexpr std::array shots61 = {QSize(1080, 2340), QSize(1125, 2436), QSize(1170, 2532)};
constexpr std::array points55 = {QSize(414, 736)};
constexpr std::array shots55 = {QSize(1242, 2208)};
constexpr std::array points47 = {QSize(375, 667)};
constexpr std::array shots47 = {QSize(750, 1334)};
constexpr std::array points40 = {QSize(320, 568)};
constexpr std::array shots40 = {QSize(640, 1096), QSize(640, 1136)};
constexpr std::array points35 = {QSize(320, 480)};
constexpr std::array shots35 = {QSize(640, 920), QSize(640, 960)};
constexpr std::array points13 = {QSize(1024, 1366), QSize(1032, 1376)};
constexpr std::array shots13 = {QSize(2064, 2752), QSize(2048, 2732)};
constexpr std::array points11 = {QSize(834, 1194), QSize(834, 1210), QSize(820, 1180), QSize(744, 1133)};
constexpr std::array shots11 = {QSize(1668, 2420), QSize(1668, 2388), QSize(1640, 2360), QSize(1488, 2266)};
constexpr std::array points105 = {QSize(834, 1112), QSize(810, 1080)};
constexpr std::array shots105 = {QSize(1668, 2224)};
constexpr std::array points97 = {QSize(768, 1024)};
constexpr std::array shots97 = {QSize(1536, 2048), QSize(1536, 2008), QSize(768, 1024), QSize(768, 1004)};

constexpr std::array<ScreenClass, 12> classes{{
    {"6.9", DeviceFamily::IPhone, points69, shots69},
    {"6.5", DeviceFamily::IPhone, points65, shots65},
    {"6.3", DeviceFamily::IPhone, points63, shots63},
    {"6.1", DeviceFamily::IPhone, points61, shots61},
    {"5.5", DeviceFamily::IPhone, points55, shots55},
    {"4.7", DeviceFamily::IPhone, points47, shots47},
    {"4", DeviceFamily::IPhone, points40, shots40},
    {"3.5", DeviceFamily::IPhone, points35, shots35},
    {"13", DeviceFamily::IPad, points13, shots13},
    {"11", DeviceFamily::IPad, points11, shots11},
    {"10.5", DeviceFamily::IPad, points105, shots105},
    {"9.7", DeviceFamily::IPad, points97, shots97},
}};

} // namespace

std::span<const ScreenClass> screenClasses()
{
    return classes;
}

const ScreenClass *screenClassOf(const DeviceModel &model)
{
    const QSize points(model.widthPoints, model.heightPoints);
    const auto *found = std::ranges::find_if(classes, [points](const ScreenClass &one) {
        return std::ranges::find(one.points, points) != one.points.end();
    });
    return found == classes.end() ? nullptr : found;
}

} // namespace lumora
