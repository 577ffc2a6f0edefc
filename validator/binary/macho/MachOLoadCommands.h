// SPDX-License-Identifier: MIT
#pragma once

#include "MachONames.h"
#include "MachOReader.h"
#include "validator/binary/ByteReader.h"

#include <array>
#include <optional>

namespace lumora
{

/// Where a slice keeps the names of the symbols that it imports and exports, as its load commands say.
struct NamePlaces
{
    std::optional<SymbolTable> symbolTable;
    std::array<FileRange, 3> bindings; ///< ordinary, weak, lazy
    std::optional<FileRange> chainedFixups;
};

/// Reads the load commands of a slice into its facts, which already hold the header. A damaged command is a fault; the
/// commands after it are read nevertheless, unless its size is wrong.
NamePlaces readLoadCommands(const ByteReader &slice, const BinaryLimits &limits, BinarySlice &facts);

} // namespace lumora
