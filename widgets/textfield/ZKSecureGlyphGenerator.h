// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace lumora
{

/// Puts a bullet in the place of every character, so that what is typed is never shown. Counts as a field editor does,
/// by UTF-16 units, so that nothing moves when editing begins.
class ZKSecureGlyphGenerator
{
public:
    static constexpr char16_t bullet = u'\u2022';

    QString glyphsForString(const QString &string) const { return QString(string.size(), QChar(bullet)); }
};

} // namespace lumora
