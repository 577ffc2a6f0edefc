// SPDX-License-Identifier: MIT
#pragma once

#include "ByteReader.h"
#include "CodeSignature.h"

namespace lumora
{

/// The directory in a blob, with its pages compared to the slice's bytes. A kind of hash that nobody knows leaves
/// `digest` at None and the rest empty; nothing when a table does not lie inside the blob.
std::optional<CodeDirectory> readCodeDirectory(QByteArrayView bytes, QByteArrayView slice, quint64 signatureOffset);

} // namespace lumora
