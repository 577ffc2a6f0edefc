// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

namespace lumora
{

/// The number a typed text begins with: leading white space is skipped, one sign is allowed, digits are read up to the
/// first other character ("64px" is 64). A text without leading digits is 0; a number beyond 32 bits is set to the
/// nearest limit.
int leadingInteger(QStringView text);

} // namespace lumora
