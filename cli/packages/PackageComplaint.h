// SPDX-License-Identifier: MIT
#pragma once

#include "cli/console/Complaint.h"
#include "foundation/Result.h"

namespace lumora
{

/// The complaint about a package that cannot be opened. For a file whose name is not a package's, it says how to rename
/// the file.
Complaint packageComplaint(const QString &file, const Failure &failure);

} // namespace lumora
