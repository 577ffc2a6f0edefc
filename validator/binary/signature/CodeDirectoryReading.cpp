// SPDX-License-Identifier: MIT
#include "CodeDirectoryReading.h"

#include <algorithm>

namespace lumora
{

namespace
{

constexpr quint32 withTeam = 0x20200;
constexpr quint32 withLongLimit = 0x20300;
constexpr quint32 withExecutableSegment = 0x20400;
constexpr qsizetype longestText = 1024;
constexpr qsizetype shortHashSize = 20;

} // namespace

bool CodeDirectory::hasSlot(SignatureSlot slot) const
{
    const QByteArray bound = specialHashes.value(static_cast<quint32>(slot));
    return std::ranges::any_of(bound, [](char byte) { return byte != 0; });
}

bool CodeDirectory::binds(SignatureSlot slot, QByteArrayView content) const
{
    return bindsDigest(slot, Digest::of(digest, content));
}

bool CodeDirectory::bindsDigest(SignatureSlot slot, QByteArrayView content) const
{
    return hasSlot(slot) && specialHashes.value(static_cast<quint32>(slot)) == content;
}

std::optional<CodeDirectory> readCodeDirectory(QByteArrayView bytes, quint64 signatureOffset,
                                               const PageCheck &brokenPages)
{
    const ByteReader blob(bytes, ByteOrder::Big);
    constexpr quint64 smallest = 44;
    if (!blob.holds(0, smallest))
        return std::nullopt;
    CodeDirectory directory;
    directory.version = *blob.u32(8);
    directory.flags = *blob.u32(12);
    const quint64 hashOffset = *blob.u32(16);
    const quint64 specialCount = *blob.u32(24);
    directory.pageCount = *blob.u32(28);
    directory.codeLimit = *blob.u32(32);
    directory.digest = static_cast<DigestKind>(*blob.u8(37));
    const quint8 pageBits = *blob.u8(39);
    const auto hashSize = static_cast<quint64>(digestSize(directory.digest));
    if (hashSize == 0 || hashSize != *blob.u8(36)) {
        directory.digest = DigestKind::None;
        return directory;
    }
    if (directory.version >= withTeam) {
        const quint32 team = blob.u32(48).value_or(0);
        if (team != 0)
            directory.team = QString::fromUtf8(blob.text(team, longestText));
    }
    if (directory.version >= withLongLimit && blob.u64(56).value_or(0) != 0)
        directory.codeLimit = *blob.u64(56);
    if (directory.version >= withExecutableSegment)
        directory.executableFlags = blob.u64(80).value_or(0);
    directory.identifier = QString::fromUtf8(blob.text(*blob.u32(20), longestText));
    constexpr quint8 mostPageBits = 30;
    if (specialCount * hashSize > hashOffset || !blob.holds(hashOffset, directory.pageCount * hashSize) ||
        pageBits > mostPageBits)
        return std::nullopt;
    directory.pageSize = pageBits == 0 ? 0 : quint64{1} << pageBits;
    for (quint64 slot = 1; slot <= specialCount; ++slot) {
        const auto hash = blob.span(hashOffset - slot * hashSize, hashSize);
        if (!hash)
            return std::nullopt;
        directory.specialHashes.insert(static_cast<quint32>(slot), hash->toByteArray());
    }
    directory.hash = Digest::of(directory.digest, bytes);
    directory.shortHash = directory.hash.first(shortHashSize);
    const quint64 pageSize = directory.pageSize == 0 ? directory.codeLimit : directory.pageSize;
    const quint64 pagesNeeded = pageSize == 0 ? 0 : (directory.codeLimit + pageSize - 1) / pageSize;
    directory.coversCode = directory.codeLimit == signatureOffset && pagesNeeded == directory.pageCount;
    directory.brokenPages = brokenPages({directory.digest, directory.pageSize, directory.codeLimit, directory.pageCount,
                                         blob.clipped(hashOffset, directory.pageCount * hashSize)});
    return directory;
}

} // namespace lumora
