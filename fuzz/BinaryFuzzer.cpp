// SPDX-License-Identifier: MIT
// Any bytes as a Mach-O file: every fact stays inside the file, and sorted lists are sorted.
#include "validator/binary/MachOReader.h"

#include <algorithm>
#include <cstdlib>

using namespace lumora;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArrayView bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const auto facts = readMachO(bytes);
    if (facts.has_value() && !isMachO(bytes))
        std::abort();
    for (const BinarySlice &slice : facts ? facts->slices : QList<BinarySlice>()) {
        if (slice.range.offset > size || slice.range.size > size - slice.range.offset)
            std::abort();
        for (const QByteArrayList &names :
             {slice.importedSymbols, slice.definedSymbols, slice.objectiveCClasses, slice.objectiveCSelectors}) {
            if (!std::ranges::is_sorted(names))
                std::abort();
        }
        slice.usesSwift();
        slice.importsClass("NSUserDefaults");
        platformName(slice.targets.isEmpty() ? BinaryPlatform::Unknown : slice.targets.first().platform);
    }
    return 0;
}
