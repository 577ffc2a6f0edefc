// SPDX-License-Identifier: MIT
#include "PngDeflate.h"

#include <libdeflate.h>
#include <zlib.h>

#include <map>
#include <memory>
#include <new>
#include <vector>

namespace lumora
{

namespace
{

struct FreeCompressor
{
    void operator()(libdeflate_compressor *compressor) const { libdeflate_free_compressor(compressor); }
};

/// A compressor is nearly a megabyte of tables, which are cheaper kept than made anew for each stream.
libdeflate_compressor *compressorOf(int level)
{
    thread_local std::map<int, std::unique_ptr<libdeflate_compressor, FreeCompressor>> compressors;
    auto &compressor = compressors[level];
    if (compressor == nullptr)
        compressor.reset(libdeflate_alloc_compressor(level));
    if (compressor == nullptr)
        throw std::bad_alloc();
    return compressor.get();
}

/// Where the last block of a deflate stream begins, and how many bits of the stream's last byte are unused.
struct StreamEnd
{
    std::size_t lastBlockBit = 0;
    unsigned unusedBits = 0;
};

StreamEnd findStreamEnd(const QByteArray &stream)
{
    z_stream inflater{};
    if (inflateInit2(&inflater, -MAX_WBITS) != Z_OK)
        throw std::bad_alloc();
    const std::unique_ptr<z_stream, void (*)(z_stream *)> closed(&inflater, [](z_stream *z) { inflateEnd(z); });

    std::vector<Bytef> sink(1 << 16);
    inflater.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(stream.constData()));
    inflater.avail_in = static_cast<uInt>(stream.size());
    StreamEnd end;
    for (;;) {
        inflater.next_out = sink.data();
        inflater.avail_out = static_cast<uInt>(sink.size());
        const int status = inflate(&inflater, Z_BLOCK);
        const auto unused = static_cast<unsigned>(inflater.data_type) & 7U;
        const bool afterBlock = (static_cast<unsigned>(inflater.data_type) & 128U) != 0;
        const bool inLastBlock = (static_cast<unsigned>(inflater.data_type) & 64U) != 0;
        if (afterBlock && inLastBlock) {
            end.unusedBits = unused;
            return end;
        }
        if (afterBlock)
            end.lastBlockBit = inflater.total_in * 8 - unused;
        if (status != Z_OK && status != Z_BUF_ERROR)
            return end;
    }
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
    const StreamEnd end = findStreamEnd(stream);
    auto *bytes = reinterpret_cast<std::uint8_t *>(stream.data());
    bytes[end.lastBlockBit / 8] &= static_cast<std::uint8_t>(~(1U << (end.lastBlockBit % 8)));
    constexpr unsigned storedBlockHeaderBits = 3;
    if (end.unusedBits < storedBlockHeaderBits)
        stream.append('\0');
    stream.append(QByteArrayView("\x00\x00\xFF\xFF", 4));
}

} // namespace lumora
