// SPDX-License-Identifier: MIT
#pragma once

#include "ModelFilter.h"

#include <QSize>

#include <vector>

namespace lumora
{

/// What a person takes for one model: all identifiers of one name, such as iPhone3,1 to iPhone3,3. Points into the list
/// it was made from.
struct ModelGroup
{
    std::vector<const DeviceModel *> variants; ///< never empty, in the order of their identifiers

    const DeviceModel &first() const { return *variants.front(); }
};

/// The models by family (iPhone, iPad, iPod touch), in each the newest first by its first day of sale.
std::vector<ModelGroup> groupedModels(std::span<const DeviceModel> models);

/// Whether any of the group's variants fits; if none does, every reason of any of them, each once.
struct GroupVerdict
{
    bool fits = true;
    std::vector<FallsOutReason> reasons;

    bool operator==(const GroupVerdict &) const = default;
};

GroupVerdict verdictOn(const ModelGroup &group, const ModelFilter &filter);

} // namespace lumora
