// SPDX-License-Identifier: MIT
#include "ModelChoices.h"

#include <algorithm>
#include <set>

namespace lumora
{

std::vector<OsVersion> majorVersions(std::span<const DeviceModel> models)
{
    std::set<int> majors;
    for (const DeviceModel &model : models) {
        majors.insert(model.minOs.major());
        majors.insert(model.maxOs.major());
    }
    std::vector<OsVersion> versions;
    versions.reserve(majors.size());
    for (const int major : majors)
        versions.push_back({{major}, 1});
    return versions;
}

QStringList chipNames(std::span<const DeviceModel> models)
{
    QStringList names;
    for (const DeviceModel &model : models)
        names << QString::fromUtf8(model.chip.data(), static_cast<qsizetype>(model.chip.size()));
    names.removeDuplicates();
    return names;
}

int groupsInRange(std::span<const ModelGroup> groups, const ModelFilter &filter)
{
    ModelFilter range;
    range.iosFrom = filter.iosFrom;
    range.iosTo = filter.iosTo;
    return static_cast<int>(
        std::ranges::count_if(groups, [&range](const ModelGroup &group) { return verdictOn(group, range).fits; }));
}

std::vector<std::size_t> toggledChoice(std::vector<std::size_t> chosen, std::size_t index)
{
    if (std::erase(chosen, index) > 0)
        return chosen;
    chosen.push_back(index);
    if (chosen.size() > mostCompared)
        chosen.erase(chosen.begin());
    return chosen;
}

} // namespace lumora
