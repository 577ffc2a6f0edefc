// SPDX-License-Identifier: MIT
#pragma once

#include "ModelGroup.h"

#include <QStringList>

#include <span>
#include <vector>

namespace lumora
{

/// The major versions of iOS in which some model begins or ends, from old to new.
std::vector<OsVersion> majorVersions(std::span<const DeviceModel> models);

/// Every chip once, in the order of the models.
QStringList chipNames(std::span<const DeviceModel> models);

/// The number of groups with a model that runs some version of the filter's range, whatever else it requires.
int groupsInRange(std::span<const ModelGroup> groups, const ModelFilter &filter);

/// The most models that are compared.
inline constexpr std::size_t mostCompared = 3;

/// The chosen groups with the index added at the end, or taken out if it is among them. The first one goes when there
/// are too many.
std::vector<std::size_t> toggledChoice(std::vector<std::size_t> chosen, std::size_t index);

} // namespace lumora
