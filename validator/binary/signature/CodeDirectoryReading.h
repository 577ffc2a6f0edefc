// SPDX-License-Identifier: MIT
#pragma once

#include "CodeSignature.h"
#include "validator/binary/ByteReader.h"

namespace lumora
{

/// The directory in a blob, with its broken pages. For an unknown kind of hash `digest` is None
/// and the rest is empty. The result is empty when a table is not inside the blob.
std::optional<CodeDirectory> readCodeDirectory(QByteArrayView bytes, quint64 signatureOffset,
                                               const PageCheck &brokenPages);

} // namespace lumora
