// SPDX-License-Identifier: MIT
// Any bytes as a Mach-O file: every fact stays inside the file, sorted lists are sorted, and the file gives the same
// facts when it comes in pieces.
#include "validator/binary/macho/BinaryInPieces.h"

#include <algorithm>
#include <cstdlib>

using namespace lumora;

namespace
{

bool areSame(const BinarySlice &one, const BinarySlice &other)
{
    return one.range.offset == other.range.offset && one.faults == other.faults &&
           one.importedSymbols == other.importedSymbols && one.definedSymbols == other.definedSymbols &&
           one.objectiveCClasses == other.objectiveCClasses && one.objectiveCSelectors == other.objectiveCSelectors;
}

void readInPieces(QByteArrayView bytes, const BinaryFacts &whole)
{
    // No page and no table ends with a piece.
    constexpr qsizetype pieceSize = 61;
    const auto passOn = [&](const std::function<void(QByteArrayView)> &take) {
        for (qsizetype at = 0; at < bytes.size(); at += pieceSize)
            take(bytes.sliced(at, qMin(pieceSize, bytes.size() - at)));
    };
    BinaryInPieces pieces(static_cast<quint64>(bytes.size()));
    passOn([&](QByteArrayView piece) { pieces.take(piece); });
    const auto facts = pieces.facts();
    if (!facts || facts->faults != whole.faults || !std::ranges::equal(facts->slices, whole.slices, areSame))
        std::abort();
    const QList<CodeSignature> signatures = pieces.signatures(*facts, passOn);
    qsizetype number = 0;
    for (const BinarySlice &slice : whole.slices) {
        if (!slice.codeSignature)
            continue;
        const QByteArrayView part =
            bytes.sliced(static_cast<qsizetype>(slice.range.offset), static_cast<qsizetype>(slice.range.size));
        if (signatures[number++].faults != readCodeSignature(part, *slice.codeSignature).faults)
            std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArrayView bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const auto facts = readMachO(bytes);
    if (facts.has_value() && !isMachO(bytes))
        std::abort();
    if (facts)
        readInPieces(bytes, *facts);
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
