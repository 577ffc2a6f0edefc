// SPDX-License-Identifier: MIT
// Any bytes as a signed binary, as a bare signature, as its message, as entitlements and as a seal.
#include "validator/binary/macho/MachOReader.h"
#include "validator/binary/signature/CodeSignature.h"
#include "validator/binary/signature/DerEntitlements.h"
#include "validator/binary/signature/ProvisioningProfile.h"
#include "validator/binary/signature/SealComparison.h"

#include <cstdlib>

using namespace lumora;

namespace
{

void check(const CodeSignature &signature)
{
    const bool known = signature.best() != nullptr;
    if (known == signature.faults.contains(SignatureFault::NoCodeDirectory))
        std::abort();
    for (const CodeDirectory &directory : signature.directories) {
        if (directory.hash.isEmpty() || directory.brokenPages.size() > 16)
            std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    check(readCodeSignature(bytes, {0, size}));
    const auto facts = readMachO(bytes);
    for (const BinarySlice &slice : facts ? facts->slices : QList<BinarySlice>()) {
        if (slice.codeSignature) {
            const QByteArrayView part = QByteArrayView(bytes).sliced(static_cast<qsizetype>(slice.range.offset),
                                                                     static_cast<qsizetype>(slice.range.size));
            check(readCodeSignature(part, *slice.codeSignature));
        }
    }
    readSigner(bytes, "content");
    readProvisioningProfile(bytes);
    entitlementsFromDer(bytes);
    BundleFile file;
    file.path = u"file";
    SealComparison comparison({file}, {});
    comparison.take(bytes);
    comparison.findings();
    return 0;
}
