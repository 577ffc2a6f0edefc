// SPDX-License-Identifier: MIT
#pragma once

#include "DeviceCatalogue.h"

#include <optional>
#include <set>
#include <string_view>

namespace lumora
{

/// What a device has to offer: at most one oldest iOS version and any number of features. Empty, it asks for nothing.
class FilterDictionary
{
public:
    bool isEmpty() const { return !m_maxIos && m_features.empty(); }
    void clear();

    /// The version that a device has to run at least; setting another replaces it.
    std::optional<float> maxIos() const { return m_maxIos; }
    void setMaxIos(float version) { m_maxIos = version; }

    /// The keys asked for. A key of no feature is one that no device has.
    const std::set<std::string_view> &features() const { return m_features; }
    /// Asks for the feature, or no longer does. The key has to outlive the dictionary, as those of `deviceFeatures` do.
    void setFeature(std::string_view key, bool wanted);

    bool operator==(const FilterDictionary &) const = default;

private:
    std::optional<float> m_maxIos;
    std::set<std::string_view> m_features;
};

/// True when the device runs at least the wanted iOS version and has every wanted feature.
bool matches(const DeviceRecord &device, const FilterDictionary &filter);

/// Stores in every record's `active` whether it matches.
void filterDevices(DeviceLists &devices, const FilterDictionary &filter);

} // namespace lumora
