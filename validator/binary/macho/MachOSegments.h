// SPDX-License-Identifier: MIT
#pragma once

#include "validator/binary/BinaryFacts.h"
#include "validator/binary/ByteReader.h"

namespace lumora
{

/// Adds the segment of an LC_SEGMENT (LC_SEGMENT_64 in a slice of 64 bits) with the sections that the command holds. A
/// segment beyond the slice's end is a fault. False when the command is too short for its content.
bool readMachOSegment(const ByteReader &command, const ByteReader &slice, BinarySlice &facts);

/// Whether a section of these flags has bytes in the file; others are filled with zeroes when they are loaded.
bool hasBytesInFile(const BinarySection &section);

} // namespace lumora
