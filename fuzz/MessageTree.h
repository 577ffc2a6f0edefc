// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

namespace lumora
{

using Bytes = std::vector<std::uint8_t>;

/// An ASN.1 value as tag, length and contents, which may be values again. Written with correct lengths, so that a
/// parser still reads a changed message to its end.
struct MessageValue
{
    Bytes tag;
    bool indefinite = false; ///< ends with a mark instead of beginning with its length
    Bytes contents;          ///< the bytes of a value without parts
    std::vector<MessageValue> parts;
};

/// The consecutive values in the bytes; empty if they do not fill the bytes exactly.
std::vector<MessageValue> messageValues(const Bytes &bytes);
Bytes messageBytes(const std::vector<MessageValue> &values);

/// Changes one value: removes it, repeats it, replaces another by it, changes its tag, its form of length or its
/// contents, or cuts it into pieces. `mutateBytes` changes plain bytes in place and returns their new number.
void mutateOneValue(std::vector<MessageValue> &values, std::minstd_rand &random,
                    std::size_t (*mutateBytes)(std::uint8_t *, std::size_t, std::size_t));

} // namespace lumora
