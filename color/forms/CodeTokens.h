// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

#include <optional>
#include <vector>

namespace lumora
{

/// One word of a piece of code. White space separates words and is not a word.
struct CodeToken
{
    enum class Kind {
        Word,   ///< letters, digits, "_" and "-", not beginning with a digit
        Number, ///< decimal, with the suffix of its type if any, or a quotient of two; or 0x and hexadecimal digits
        Hash,   ///< # and hexadecimal digits
        Place,  ///< {name}, the place of a value; only if asked for
        Sign,   ///< any other single character
    };

    Kind kind = Kind::Sign;
    QStringView text;

    bool operator==(const CodeToken &) const = default;
};

enum class CodePlaces { None, Known };

/// The words of the text, which must outlive them. Empty if it has more words than any color code, or an invalid number
/// or "#".
std::optional<std::vector<CodeToken>> codeTokens(QStringView text, CodePlaces places = CodePlaces::None);

/// The value of a decimal number token without its suffix; empty for a quotient and a hexadecimal one.
std::optional<double> decimalValue(QStringView number);

/// The value of a decimal number token or of a quotient such as "51/255.0". Languages that divide whole numbers to
/// whole ones have no value for "51/255".
enum class WholeQuotients { Divided, Truncated };
std::optional<double> quotientValue(QStringView number, WholeQuotients whole);

} // namespace lumora
