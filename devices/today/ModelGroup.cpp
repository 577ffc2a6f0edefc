// SPDX-License-Identifier: MIT
#include "ModelGroup.h"

#include <algorithm>
#include <map>
#include <tuple>

namespace lumora
{

namespace
{

/// Identifiers in the order of their numbers: iPad13,4 before iPad13,16.
auto identifierKey(const DeviceModel *model)
{
    const std::string_view text = model->identifier;
    const std::size_t comma = std::min(text.find(','), text.size());
    return std::make_tuple(comma, text.substr(0, comma), text.size(), text);
}

auto groupKey(const ModelGroup &group)
{
    return familyOf(group.first());
}

std::string_view firstSale(const ModelGroup &group)
{
    return std::ranges::min(group.variants, {}, &DeviceModel::released)->released;
}

} // namespace

std::vector<ModelGroup> groupedModels(std::span<const DeviceModel> models)
{
    std::map<std::pair<DeviceFamily, std::string_view>, std::size_t> indexOf;
    std::vector<ModelGroup> groups;
    for (const DeviceModel &model : models) {
        const auto [place, isNew] = indexOf.try_emplace({familyOf(model), model.name}, groups.size());
        if (isNew)
            groups.emplace_back();
        groups[place->second].variants.push_back(&model);
    }
    for (ModelGroup &group : groups)
        std::ranges::sort(group.variants, {}, identifierKey);
    std::ranges::stable_sort(groups, [](const ModelGroup &one, const ModelGroup &other) {
        const auto family = groupKey(one) <=> groupKey(other);
        return family != 0 ? family < 0 : firstSale(one) > firstSale(other);
    });
    return groups;
}

GroupVerdict verdictOn(const ModelGroup &group, const ModelFilter &filter)
{
    GroupVerdict verdict;
    for (const DeviceModel *model : group.variants) {
        const std::vector<FallsOutReason> reasons = reasonsAgainst(*model, filter);
        if (reasons.empty())
            return {};
        verdict.fits = false;
        for (const FallsOutReason &reason : reasons) {
            if (std::ranges::find(verdict.reasons, reason) == verdict.reasons.end())
                verdict.reasons.push_back(reason);
        }
    }
    return verdict;
}

} // namespace lumora
