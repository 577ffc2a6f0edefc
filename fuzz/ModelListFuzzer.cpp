// SPDX-License-Identifier: MIT
// Any bytes as a device list: what is accepted is grouped, filtered and laid out.
#include "devices/today/ModelCard.h"
#include "devices/today/ModelLayout.h"
#include "devices/today/ModelList.h"

#include <cstdlib>

using namespace lumora;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const Result<ModelList> list = readModelList(bytes, QStringLiteral("list"));
    if (!list)
        return 0;
    const std::vector<ModelGroup> groups = groupedModels(list.value().models());
    ModelFilter filter;
    takeIosRange(u"9..15", filter);
    std::size_t variants = 0;
    for (const ModelGroup &group : groups) {
        variants += group.variants.size();
        const GroupVerdict verdict = verdictOn(group, filter);
        if (verdict.fits != verdict.reasons.empty())
            std::abort();
    }
    if (variants != list.value().models().size() || layOutModels(groups, 500).tiles.size() != groups.size())
        std::abort();
    return comparedFacts(groups).empty() ? 1 : 0;
}
