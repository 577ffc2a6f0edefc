// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

namespace lumora
{

/// What follows from one change that the user made to the color field's text.
struct TypingOutcome
{
    /// The text the field has to show instead of what was typed; nothing where it stays as it is.
    std::optional<QString> correctedText;
    /// The digits to take as the new color; nothing while they do not make one. They may still turn out not to be
    /// hexadecimal.
    std::optional<QString> colorText;

    bool operator==(const TypingOutcome &) const = default;
};

/// The rule of live typing: counted without "#", a seventh character undoes itself (of a longer pasted text only the
/// last character goes), and three or six characters are taken as the color at once.
TypingOutcome outcomeOfTyping(const QString &fieldText);

} // namespace lumora
