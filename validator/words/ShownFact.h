// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/PrintableText.h"

namespace lumora
{

/// A fact as one line of the pane, shortened because a hostile package may contain megabytes of it.
inline QString shownFact(const QString &value)
{
    constexpr qsizetype longest = 120;
    const QString line = printableText(value.left(longest + 1));
    return line.size() > longest ? line.first(longest) + u'…' : line;
}

} // namespace lumora
