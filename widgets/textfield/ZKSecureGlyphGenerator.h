// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace lumora
{

/// Replaces every character by a bullet, so that the typed text is never shown. Counts UTF-16 units, as the field
/// editor does, so that nothing moves when editing begins.
class ZKSecureGlyphGenerator
{
public:
    static constexpr char16_t bullet = u'\u2022';

    QString glyphsForString(const QString &string) const { return QString(string.size(), QChar(bullet)); }
};

} // namespace lumora
