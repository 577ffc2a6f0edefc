// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace lumora
{

/// The limits at which an extraction is stopped.
struct ExtractionLimits
{
    std::uint64_t bytes = std::uint64_t{8} << 30;          ///< unpacked, all entries together
    std::uint64_t entries = 500'000;                       ///< entries of the archive plus folders made for them
    std::uint64_t freeBytesKept = std::uint64_t{64} << 20; ///< that must stay free on the destination's file system
};

} // namespace lumora
