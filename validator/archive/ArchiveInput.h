// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace lumora
{

/// Opens the archive with minizip as `unzOpen` does, but reads it through two small buffers: one for the directory, one
/// for the entries. The library reads byte by byte and goes to and fro between the two, so that without them every
/// entry costs several system calls. Null if there is no archive; closed with `unzClose`.
void *openWithBuffers(const QString &path);

} // namespace lumora
