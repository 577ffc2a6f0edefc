// SPDX-License-Identifier: MIT
#pragma once

#include "DeviceRecord.h"

#include <vector>

namespace lumora
{

/// The devices of the catalogue, each list in the order in which it is shown.
struct DeviceLists
{
    std::vector<DeviceRecord> iPhones;
    std::vector<DeviceRecord> iPods;
    std::vector<DeviceRecord> iPads;

    bool operator==(const DeviceLists &) const = default;
};

/// These return new lists of new records, with every device active.
std::vector<DeviceRecord> setupiPhones();
std::vector<DeviceRecord> setupiPods();
/// The first record is the iPad mini; only its picture differs from the first iPad's.
std::vector<DeviceRecord> setupiPads();

/// All three lists.
DeviceLists setupData();

} // namespace lumora
