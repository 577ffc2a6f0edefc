// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

namespace lumora
{

using Bytes = std::vector<std::uint8_t>;

/// An ASN.1 value as tag, length and contents, which may be values again. Written with lengths that fit, so that a
/// message whose parts were changed is still one that a parser goes through to its end.
struct MessageValue
{
    Bytes tag;
    bool indefinite = false; ///< ends with a mark instead of beginning with its length
    Bytes contents;          ///< of a value without parts
    std::vector<MessageValue> parts;
};

/// The values that follow each other in the bytes; none where they do not come out even.
std::vector<MessageValue> messageValues(const Bytes &bytes);
Bytes messageBytes(const std::vector<MessageValue> &values);

/// Changes one value: left out, repeated, put in place of another, given another tag, another form of length, other
/// contents, or cut into pieces. `mutateBytes` changes plain bytes in place and answers how many there are then.
void mutateOneValue(std::vector<MessageValue> &values, std::minstd_rand &random,
                    std::size_t (*mutateBytes)(std::uint8_t *, std::size_t, std::size_t));

} // namespace lumora
