// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"

#include <QString>

namespace lumora
{

/// One line for a person at a terminal: the file or value, what is wrong with it, what to do. English, as all of the
/// command line is.
QString failureText(const Failure &failure);
/// The same with other advice than the failure usually comes with.
QString failureText(const Failure &failure, QLatin1StringView remedy);

} // namespace lumora
