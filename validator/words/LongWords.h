// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace lumora
{

/// The text with invisible break points inside words that are longer than a line: after punctuation, and every few
/// characters where there is none. Labels only break lines between words and would cut off a long identifier.
QString breakingLongWords(const QString &text);

} // namespace lumora
