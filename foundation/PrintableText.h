// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace lumora
{

/// The text on one line and without power over a terminal: every control character, line separator and direction
/// override stands as its code point, such as "<U+001B>". Names and facts out of a package are only printed this way.
QString printableText(const QString &text);

} // namespace lumora
