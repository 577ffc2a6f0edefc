// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <QStringView>

namespace lumora
{

/// A typed whole number. Nothing is cut off: "180px" and "180.5" are not numbers.
struct TypedNumber
{
    bool isWhole = false;
    int value = 0; ///< beyond 32 bits, the nearest limit
};

/// Reads decimal digits, optionally with a sign in front and spaces around them.
TypedNumber typedNumber(QStringView text);

/// A typed width and height.
struct TypedSize
{
    bool isSize = false;
    QSize value; ///< may be out of any range
};

/// Reads two whole numbers with an x between them: "300x200", "300 X 200", "300×200". A hexadecimal number (0x7) is not
/// a size.
TypedSize typedSize(QStringView text);

} // namespace lumora
