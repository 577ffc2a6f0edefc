// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

namespace lumora
{

/// The result of the user's change to the color field's text.
struct TypingOutcome
{
    /// The text that must replace the typed one; empty if the typed one stays.
    std::optional<QString> correctedText;
    /// The digits of the new color; empty while they are not complete. They may not be hexadecimal.
    std::optional<QString> colorText;

    bool operator==(const TypingOutcome &) const = default;
};

/// The rule of live typing. Characters count without "#". A seventh character is removed again (of a longer pasted text
/// only the last character is removed), and three or six characters become the color at once.
TypingOutcome outcomeOfTyping(const QString &fieldText);

} // namespace lumora
