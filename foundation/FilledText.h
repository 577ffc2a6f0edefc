// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1StringView>
#include <QString>

#include <span>
#include <utility>

namespace lumora
{

/// A bracketed name in a text, such as "[FILE]", and its replacement.
struct TextValue
{
    TextValue(const char *bracketed, QString value) : name(bracketed), replacement(std::move(value)) {}

    QLatin1StringView name; ///< a literal
    QString replacement;

    bool operator==(const TextValue &) const = default;
};

/// The text with its bracketed names replaced. Names inside a replacement stay.
QString filledText(const QString &text, std::span<const TextValue> values);

} // namespace lumora
