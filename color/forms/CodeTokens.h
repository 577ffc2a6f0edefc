// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

#include <optional>
#include <vector>

namespace lumora
{

/// One word of a piece of code. White space tells words apart and is nothing itself.
struct CodeToken
{
    enum class Kind {
        Word,   ///< letters, digits, "_" and "-", not beginning with a digit
        Number, ///< decimal, with the suffix of its type if any; or 0x and hexadecimal digits
        Hash,   ///< # and hexadecimal digits
        Place,  ///< {name}, which stands for a value; only where asked for
        Sign,   ///< any other single character
    };

    Kind kind = Kind::Sign;
    QStringView text;

    bool operator==(const CodeToken &) const = default;
};

enum class CodePlaces { None, Known };

/// The words of the text, which has to outlive them; none where it has more of them than any color code, or begins a
/// number or # that is none.
std::optional<std::vector<CodeToken>> codeTokens(QStringView text, CodePlaces places = CodePlaces::None);

/// The value of a decimal number token, its suffix left out; none for a hexadecimal one.
std::optional<double> decimalValue(QStringView number);

} // namespace lumora
