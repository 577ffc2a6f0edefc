// SPDX-License-Identifier: MIT
#include "PngDeflate.h"

#include "DeflateBlocks.h"
#include "foundation/ThreadValue.h"

#include <libdeflate.h>

#include <map>
#include <memory>
#include <new>

namespace lumora
{

namespace
{

struct FreeCompressor
{
    void operator()(libdeflate_compressor *compressor) const { libdeflate_free_compressor(compressor); }
};

/// A compressor has nearly a megabyte of tables, so each thread keeps one for the next stream.
libdeflate_compressor *compressorOf(int level)
{
    static ThreadValue<std::map<int, std::unique_ptr<libdeflate_compressor, FreeCompressor>>> compressors;
    auto &compressor = compressors.get()[level];
    if (compressor == nullptr)
        compressor.reset(libdeflate_alloc_compressor(level));
    if (compressor == nullptr)
        throw std::bad_alloc();
    return compressor.get();
}

} // namespace

QByteArray deflated(std::span<const std::uint8_t> bytes, int level)
{
    libdeflate_compressor *compressor = compressorOf(level);
    const std::size_t bound = libdeflate_deflate_compress_bound(compressor, bytes.size());
    QByteArray stream(static_cast<qsizetype>(bound), Qt::Uninitialized);
    stream.resize(static_cast<qsizetype>(
        libdeflate_deflate_compress(compressor, bytes.data(), bytes.size(), stream.data(), bound)));
    return stream;
}

void keepOpen(QByteArray &stream)
{
    auto *bytes = reinterpret_cast<std::uint8_t *>(stream.data());
    const auto last = findLastDeflateBlock({bytes, static_cast<std::size_t>(stream.size())});
    Q_ASSERT(last);
    bytes[last->first / 8] &= static_cast<std::uint8_t>(~(1U << (last->first % 8)));
    const std::size_t unusedBits = 8 * static_cast<std::size_t>(stream.size()) - last->end;
    constexpr std::size_t storedBlockHeaderBits = 3;
    if (unusedBits < storedBlockHeaderBits)
        stream.append('\0');
    stream.append(QByteArrayView("\x00\x00\xFF\xFF", 4));
}

} // namespace lumora
