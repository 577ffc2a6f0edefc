// SPDX-License-Identifier: MIT
#pragma once

namespace lumora
{

/// For commands that are over in a moment and use some tens of megabytes again and again: what is freed stays with the
/// program instead of being handed back and fetched anew, and comes in large pages where the system has them. Call it
/// before the first thread is started. Without the GNU C library it does nothing.
void keepFreedMemory();

} // namespace lumora
