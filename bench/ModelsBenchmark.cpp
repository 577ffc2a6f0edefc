// SPDX-License-Identifier: MIT
// The time of filtering and arranging all of today's models.
#include "devices/today/ModelLayout.h"
#include "devices/today/ModelList.h"

#include <benchmark/benchmark.h>

using namespace lumora;

namespace
{

void groupsFiltersAndLaysOut(benchmark::State &state)
{
    ModelFilter filter;
    takeIosRange(u"12..17", filter);
    filter.families = {DeviceFamily::IPhone, DeviceFamily::IPad};
    filter.capabilities = {modelCapability(u"arkit"), modelCapability(u"metal")};
    filter.search = QStringLiteral("pro");
    for (auto _ : state) {
        const std::vector<ModelGroup> groups = groupedModels(builtInModels());
        std::size_t reasons = 0;
        for (const ModelGroup &group : groups)
            reasons += verdictOn(group, filter).reasons.size();
        benchmark::DoNotOptimize(reasons);
        benchmark::DoNotOptimize(layOutModels(groups, 835).height);
    }
}
BENCHMARK(groupsFiltersAndLaysOut)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
