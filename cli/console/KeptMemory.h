// SPDX-License-Identifier: MIT
#pragma once

namespace lumora
{

/// For short commands that allocate tens of megabytes again and again: freed memory stays with the program instead of
/// being returned to the system, and uses large pages if the system has them. Call it before the first thread is
/// started. Does nothing without the GNU C library, or where the address space is limited.
void keepFreedMemory();

} // namespace lumora
