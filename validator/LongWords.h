// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace lumora
{

/// The text with invisible places at which a line may end inside words that are longer than a line may be: behind
/// their punctuation, and every few characters where there is none. Labels break lines between words only and would
/// cut an endless identifier off.
QString breakingLongWords(const QString &text);

} // namespace lumora
