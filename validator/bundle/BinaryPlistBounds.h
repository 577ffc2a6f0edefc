// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>

namespace lumora
{

/// How large and deep a property list may become when it is read.
struct PropertyListLimits
{
    qsizetype fileBytes = 4 << 20;
    qsizetype values = 100'000;         ///< counted as often as they are referred to
    qsizetype expandedBytes = 16 << 20; ///< of texts and data, counted as often as they are referred to
    qsizetype depth = 200;              ///< of arrays and dictionaries in one another
};

/// True when libplist can be trusted with the binary property list: it unfolds within the limits. Its objects refer to
/// one another, so that a few bytes can stand for a list of any size or depth, or for one without end; libplist unfolds
/// them without asking. Broken references and sizes make the answer false, and so do texts with a zero in them, at
/// which libplist ends the program when they are keys.
bool binaryPlistIsBounded(QByteArrayView bytes, const PropertyListLimits &limits);

} // namespace lumora
