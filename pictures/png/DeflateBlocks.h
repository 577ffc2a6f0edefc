// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace lumora
{

/// The last block of a raw deflate stream, in bits from the stream's start.
struct LastDeflateBlock
{
    std::size_t first = 0; ///< the bit that marks the block as the last
    std::size_t end = 0;   ///< behind its last bit
};

/// Walks over a stream's blocks without unpacking them. Empty where the stream is damaged or ends too early.
std::optional<LastDeflateBlock> findLastDeflateBlock(std::span<const std::uint8_t> stream);

} // namespace lumora
