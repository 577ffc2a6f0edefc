// SPDX-License-Identifier: MIT
#pragma once

#include "DeviceCatalogue.h"

#include <optional>
#include <set>
#include <string_view>
#include <vector>

namespace lumora
{

/// The requirements on a device: at most one oldest iOS version and any number of features. An empty filter requires
/// nothing.
class FilterDictionary
{
public:
    bool isEmpty() const { return !m_maxIos && m_features.empty(); }
    void clear();

    /// The oldest version that a device must run; setting another replaces it.
    std::optional<float> maxIos() const { return m_maxIos; }
    void setMaxIos(float version) { m_maxIos = version; }

    /// The keys of the required features. No device has an unknown key.
    const std::set<std::string_view> &features() const { return m_features; }
    /// Requires the feature, or no longer does. The key must outlive the filter, as those of `deviceFeatures` do.
    void setFeature(std::string_view key, bool wanted);

    bool operator==(const FilterDictionary &) const = default;

private:
    std::optional<float> m_maxIos;
    std::set<std::string_view> m_features;
};

/// True when the device runs the oldest iOS version and has every required feature.
bool matches(const DeviceRecord &device, const FilterDictionary &filter);

/// Why a device does not match; empty for one that matches.
struct Shortfall
{
    std::optional<float> wantedIos;             ///< newer than any version that the device runs
    std::vector<const DeviceFeature *> missing; ///< in the order of `deviceFeatures`

    bool operator==(const Shortfall &) const = default;
};
Shortfall shortfall(const DeviceRecord &device, const FilterDictionary &filter);

/// Stores in every record's `active` whether it matches.
void filterDevices(DeviceLists &devices, const FilterDictionary &filter);

} // namespace lumora
