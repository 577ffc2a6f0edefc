// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>

namespace lumora
{

/// The limits of size and depth for reading a property list.
struct PropertyListLimits
{
    qsizetype fileBytes = 4 << 20;
    qsizetype values = 100'000;         ///< objects, counted as often as they are referred to
    qsizetype expandedBytes = 16 << 20; ///< bytes of texts and data, counted as often as they are referred to
    qsizetype depth = 200;              ///< depth of nested arrays and dictionaries
    qsizetype containers = 20'000;      ///< arrays and dictionaries of an XML list
};

/// True when it is safe to read the binary property list with libplist, because it unfolds within the limits. Objects
/// refer to one another, so a few bytes can describe a list of any size or depth, or an endless one, and libplist
/// unfolds them without limits. Returns false for broken references and sizes, and for texts with a zero, since
/// libplist ends the program at such a key.
bool binaryPlistIsBounded(QByteArrayView bytes, const PropertyListLimits &limits);

} // namespace lumora
