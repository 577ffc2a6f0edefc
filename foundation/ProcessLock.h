// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace lumora
{

/// What a locked process may still reach on disk, besides what it has open.
struct LockedPlaces
{
    QStringList readable; ///< files and folders with all that is in them
    QStringList written;  ///< files that the process may write or replace
    QStringList scratch;  ///< folders in which it may do everything, and which it may remove
};

/// Which parts of the lock are in force.
struct ProcessLock
{
    bool files = false; ///< it reaches no other files (Landlock)
    bool calls = false; ///< it can open no connection, start no program and touch no other process (seccomp)
};

/// Locks the calling process in for good, so that a hostile file that takes it over can do nothing but compute. Call it
/// before the first foreign byte is parsed and before other threads are started. Refuses every path that `places` does
/// not name, except the system's own libraries and tables, which may be read. Does as much as the kernel offers.
ProcessLock lockProcess(const LockedPlaces &places);

} // namespace lumora
