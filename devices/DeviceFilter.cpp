// SPDX-License-Identifier: MIT
#include "DeviceFilter.h"

#include <algorithm>

namespace lumora
{

void FilterDictionary::clear()
{
    m_maxIos.reset();
    m_features.clear();
}

void FilterDictionary::setFeature(std::string_view key, bool wanted)
{
    if (wanted)
        m_features.insert(key);
    else
        m_features.erase(key);
}

bool matches(const DeviceRecord &device, const FilterDictionary &filter)
{
    if (filter.maxIos() && *filter.maxIos() > device.maxIos)
        return false;
    return std::ranges::all_of(filter.features(), [&](std::string_view key) { return hasFeature(device, key); });
}

Shortfall shortfall(const DeviceRecord &device, const FilterDictionary &filter)
{
    Shortfall shortfall;
    if (filter.maxIos() && *filter.maxIos() > device.maxIos)
        shortfall.wantedIos = filter.maxIos();
    for (const DeviceFeature &feature : deviceFeatures) {
        if (filter.features().contains(feature.key) && !(device.*(feature.value)))
            shortfall.missing.push_back(&feature);
    }
    return shortfall;
}

void filterDevices(DeviceLists &devices, const FilterDictionary &filter)
{
    for (std::vector<DeviceRecord> *list : {&devices.iPhones, &devices.iPods, &devices.iPads}) {
        for (DeviceRecord &device : *list)
            device.active = matches(device, filter);
    }
}

} // namespace lumora
