// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace lumora
{

/// The text on one line, harmless to a terminal: every control character, line separator and direction override becomes
/// its code point, such as "<U+001B>". Names and facts from a package are only printed this way.
QString printableText(const QString &text);

} // namespace lumora
