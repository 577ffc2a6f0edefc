// SPDX-License-Identifier: MIT
#include "CodeTokens.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr std::size_t mostTokens = 96;

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

bool isHexDigit(QChar character)
{
    return isDigit(character) || (character >= u'a' && character <= u'f') || (character >= u'A' && character <= u'F');
}

bool isLetter(QChar character)
{
    return (character >= u'a' && character <= u'z') || (character >= u'A' && character <= u'Z') || character == u'_';
}

bool isWordCharacter(QChar character)
{
    return isLetter(character) || isDigit(character) || character == u'-';
}

template <typename Predicate> qsizetype lengthWhile(QStringView text, qsizetype from, Predicate accepted)
{
    qsizetype end = from;
    while (end < text.size() && accepted(text[end]))
        ++end;
    return end - from;
}

/// The length of the decimal number at the beginning, without a suffix; 0 if there is none.
qsizetype decimalLength(QStringView text)
{
    qsizetype at = !text.isEmpty() && (text[0] == u'-' || text[0] == u'+') ? 1 : 0;
    const qsizetype whole = lengthWhile(text, at, isDigit);
    at += whole;
    qsizetype fraction = 0;
    if (at < text.size() && text[at] == u'.') {
        fraction = lengthWhile(text, at + 1, isDigit);
        // As in C, the digits after the point may be missing.
        if (whole + fraction > 0)
            at += 1 + fraction;
    }
    if (whole + fraction == 0)
        return 0;
    if (at < text.size() && (text[at] == u'e' || text[at] == u'E')) {
        qsizetype power = at + 1;
        if (power < text.size() && (text[power] == u'-' || text[power] == u'+'))
            ++power;
        if (const qsizetype digits = lengthWhile(text, power, isDigit); digits > 0)
            at = power + digits;
    }
    return at;
}

/// The length of the decimal number at the beginning with the suffix of its type.
qsizetype operandLength(QStringView text)
{
    qsizetype length = decimalLength(text);
    if (length > 0 && length < text.size() && (text[length] == u'f' || text[length] == u'F'))
        ++length;
    return length;
}

qsizetype numberLength(QStringView text)
{
    if (text.startsWith("0x"_L1) || text.startsWith("0X"_L1)) {
        const qsizetype digits = lengthWhile(text, 2, isHexDigit);
        return digits > 0 ? 2 + digits : 0;
    }
    const qsizetype length = operandLength(text);
    const qsizetype slash = length + lengthWhile(text, length, [](QChar one) { return one.isSpace(); });
    if (length == 0 || slash == text.size() || text[slash] != u'/')
        return length;
    const qsizetype from = slash + 1 + lengthWhile(text, slash + 1, [](QChar one) { return one.isSpace(); });
    const qsizetype divisor = operandLength(text.sliced(from));
    return divisor > 0 ? from + divisor : length;
}

qsizetype placeLength(QStringView text)
{
    const qsizetype end = text.indexOf(u'}');
    const bool named = text.size() > 1 && (isLetter(text[1]) || text[1] == u'#' || text[1] == u'0');
    return named && end > 0 ? end + 1 : 0;
}

/// The token at the beginning of the text; empty if there is no valid one.
CodeToken tokenAt(QStringView text, CodePlaces places)
{
    const QChar first = text[0];
    if (places == CodePlaces::Known && first == u'{') {
        if (const qsizetype length = placeLength(text); length > 0)
            return {CodeToken::Kind::Place, text.first(length)};
    }
    if (isLetter(first))
        return {CodeToken::Kind::Word, text.first(lengthWhile(text, 0, isWordCharacter))};
    const bool known = places == CodePlaces::Known;
    if (first == u'#' && !known) {
        const qsizetype digits = lengthWhile(text, 1, isHexDigit);
        const bool ends = digits > 0 && (digits + 1 == text.size() || !isWordCharacter(text[digits + 1]));
        return ends ? CodeToken{CodeToken::Kind::Hash, text.first(digits + 1)}
                    : CodeToken{CodeToken::Kind::Sign, text.first(1)};
    }
    if (const qsizetype length = numberLength(text); length > 0) {
        const bool ends = length == text.size() || !isWordCharacter(text[length]);
        return {CodeToken::Kind::Number, ends ? text.first(length) : QStringView()};
    }
    return {CodeToken::Kind::Sign, text.first(1)};
}

} // namespace

std::optional<std::vector<CodeToken>> codeTokens(QStringView text, CodePlaces places)
{
    std::vector<CodeToken> tokens;
    QStringView rest = text.trimmed();
    while (!rest.isEmpty()) {
        const CodeToken token = tokenAt(rest, places);
        if (token.text.isEmpty() || tokens.size() == mostTokens)
            return std::nullopt;
        tokens.push_back(token);
        rest = rest.sliced(token.text.size()).trimmed();
    }
    return tokens;
}

std::optional<double> decimalValue(QStringView number)
{
    const qsizetype length = decimalLength(number);
    if (length == 0 || length + 1 < number.size())
        return std::nullopt;
    const double value = number.first(length).toDouble();
    // "1e999" is a number, too.
    return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

std::optional<double> quotientValue(QStringView number, WholeQuotients whole)
{
    const qsizetype slash = number.indexOf(u'/');
    if (slash < 0)
        return decimalValue(number);
    const auto isWhole = [](QStringView operand) { return std::ranges::all_of(operand, isDigit); };
    const QStringView dividend = number.first(slash).trimmed();
    const QStringView divisor = number.sliced(slash + 1).trimmed();
    const std::optional<double> one = decimalValue(dividend);
    const std::optional<double> other = decimalValue(divisor);
    if (!one || !other || *other <= 0.0 ||
        (whole == WholeQuotients::Truncated && isWhole(dividend) && isWhole(divisor)))
        return std::nullopt;
    return *one / *other;
}

} // namespace lumora
