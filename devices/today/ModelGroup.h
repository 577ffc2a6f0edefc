// SPDX-License-Identifier: MIT
#pragma once

#include "ModelFilter.h"

#include <QSize>

#include <vector>

namespace lumora
{

/// All identifiers of one name, such as iPhone3,1 to iPhone3,3, which people consider one model. Points into the list
/// that it was made from.
struct ModelGroup
{
    std::vector<const DeviceModel *> variants; ///< never empty, in the order of their identifiers

    const DeviceModel &first() const { return *variants.front(); }
};

/// The models by family (iPhone, iPad, iPod touch), in each family sorted by the first day of sale, the newest first.
std::vector<ModelGroup> groupedModels(std::span<const DeviceModel> models);

/// Whether any of the group's variants matches; if none does, the reasons of all of them, each once.
struct GroupVerdict
{
    bool fits = true;
    std::vector<FallsOutReason> reasons;

    bool operator==(const GroupVerdict &) const = default;
};

GroupVerdict verdictOn(const ModelGroup &group, const ModelFilter &filter);

} // namespace lumora
