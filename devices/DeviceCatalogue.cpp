// SPDX-License-Identifier: MIT
#include "DeviceCatalogue.h"

namespace lumora
{

namespace
{

// The columns are those of DeviceRecord: model, picture, newest iOS, then from multitasking to OpenGL ES 3.0.
// clang-format off
constexpr std::array<DeviceRecord, 7> iPhoneTable{{
    //                                   iOS   MT RET SIRI GPS CMP GYR BC FC FL VR BLE GL2 GL3
    {"3G",  "device_iphone_old", 4.2F, 0, 0,  0,   1,  0,  0,  1, 0, 0, 0, 0,  0,  0},
    {"3GS", "device_iphone_old", 6.1F, 1, 0,  0,   1,  1,  0,  1, 0, 0, 1, 0,  1,  0},
    {"4",   "device_iphone_old", 7.0F, 1, 1,  0,   1,  1,  1,  1, 1, 1, 1, 0,  1,  0},
    {"4S",  "device_iphone_old", 7.0F, 1, 1,  1,   1,  1,  1,  1, 1, 1, 1, 1,  1,  0},
    {"5",   "device_iphone",     7.0F, 1, 1,  1,   1,  1,  1,  1, 1, 1, 1, 1,  1,  0},
    {"5C",  "device_iphone",     7.0F, 1, 1,  1,   1,  1,  1,  1, 1, 1, 1, 1,  1,  0},
    {"5S",  "device_iphone",     7.0F, 1, 1,  1,   1,  1,  1,  1, 1, 1, 1, 1,  1,  1},
}};

// The 5G has no picture of its own; it shows the similar one of the newer iPhone.
constexpr std::array<DeviceRecord, 5> iPodTable{{
    //                                 iOS   MT RET SIRI GPS CMP GYR BC FC FL VR BLE GL2 GL3
    {"1G", "device_ipod_old", 3.1F, 0, 0,  0,   0,  0,  0,  0, 0, 0, 0, 0,  0,  0},
    {"2G", "device_ipod_old", 4.2F, 0, 0,  0,   0,  0,  0,  0, 0, 0, 0, 0,  0,  0},
    {"3G", "device_ipod_old", 5.1F, 1, 0,  0,   0,  0,  0,  0, 0, 0, 0, 0,  1,  0},
    {"4G", "device_ipod_old", 6.1F, 1, 1,  0,   0,  0,  1,  1, 1, 0, 1, 0,  1,  0},
    {"5G", "device_iphone",   7.0F, 1, 1,  1,   0,  0,  1,  1, 1, 0, 1, 1,  1,  0},
}};

// "2th Gen" is the label as the window shows it.
constexpr std::array<DeviceRecord, 5> iPadTable{{
    //                                       iOS   MT RET SIRI GPS CMP GYR BC FC FL VR BLE GL2 GL3
    {"1st Gen", "device_ipad_mini", 7.0F, 1, 0,  1,   1,  1,  1,  1, 1, 0, 1, 1,  1,  0},
    {"1st Gen", "device_ipad",      5.1F, 1, 0,  0,   1,  1,  0,  0, 0, 0, 0, 0,  1,  0},
    {"2th Gen", "device_ipad",      7.0F, 1, 0,  0,   1,  1,  1,  1, 1, 0, 1, 0,  1,  0},
    {"3rd Gen", "device_ipad",      7.0F, 1, 1,  1,   1,  1,  1,  1, 1, 0, 1, 1,  1,  0},
    {"4th Gen", "device_ipad",      7.0F, 1, 1,  1,   1,  1,  1,  1, 1, 0, 1, 1,  1,  0},
}};
// clang-format on

} // namespace

std::vector<DeviceRecord> setupiPhones()
{
    return {iPhoneTable.begin(), iPhoneTable.end()};
}

std::vector<DeviceRecord> setupiPods()
{
    return {iPodTable.begin(), iPodTable.end()};
}

std::vector<DeviceRecord> setupiPads()
{
    return {iPadTable.begin(), iPadTable.end()};
}

DeviceLists setupData()
{
    return {setupiPhones(), setupiPods(), setupiPads()};
}

} // namespace lumora
