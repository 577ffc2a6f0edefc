// SPDX-License-Identifier: MIT
// Any bytes as a compiled asset catalogue, as a whole and in pieces.
#include "validator/binary/catalog/CatalogInPieces.h"

#include <algorithm>
#include <cstdlib>

using namespace lumora;

namespace
{

/// The same, but for pictures of which too little was kept.
bool areSame(const QList<CatalogRendition> &inPieces, QList<CatalogRendition> whole)
{
    if (inPieces.size() != whole.size())
        return false;
    for (qsizetype i = 0; i < whole.size(); ++i) {
        if (inPieces[i].jpeg.isEmpty())
            whole[i].jpeg.clear();
    }
    return inPieces == whole;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArrayView bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const auto pass = [&](const std::function<void(QByteArrayView)> &take) {
        constexpr qsizetype pieceSize = 1000;
        for (qsizetype at = 0; at < bytes.size(); at += pieceSize)
            take(bytes.sliced(at, qMin(pieceSize, bytes.size() - at)));
    };
    CatalogInPieces pieces;
    pass([&](QByteArrayView piece) { pieces.take(piece); });
    const auto read = pieces.catalog(pass);
    const auto catalog = readAssetCatalog(bytes);
    if (read.has_value() != catalog.has_value())
        std::abort();
    // Blocks that lie over one another may need more room than there is.
    if (read && !read->faults.contains(CatalogFault::TooLarge) &&
        (!areSame(read->renditions, catalog->renditions) || read->facets != catalog->facets ||
         read->faults != catalog->faults))
        std::abort();
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
