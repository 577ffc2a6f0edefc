// SPDX-License-Identifier: MIT
// Any bytes as a compiled asset catalogue.
#include "validator/binary/catalog/AssetCatalog.h"

#include <algorithm>
#include <cstdlib>

using namespace lumora;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto catalog =
        readAssetCatalog(QByteArrayView(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
    if (!catalog)
        return 0;
    for (const CatalogRendition &rendition : catalog->renditions) {
        if (rendition.width < 0 || rendition.height < 0 || rendition.pixelFormat.size() != 4)
            std::abort();
        if (!rendition.facet.isEmpty() && !std::ranges::binary_search(catalog->facets, rendition.facet))
            std::abort();
    }
    return 0;
}
