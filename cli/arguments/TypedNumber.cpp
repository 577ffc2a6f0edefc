// SPDX-License-Identifier: MIT
#include "TypedNumber.h"

#include <algorithm>
#include <limits>

namespace lumora
{

TypedNumber typedNumber(QStringView text)
{
    text = text.trimmed();
    const bool isNegative = text.startsWith(u'-');
    if (isNegative || text.startsWith(u'+'))
        text = text.sliced(1);
    const auto isDigit = [](QChar character) { return character >= u'0' && character <= u'9'; };
    if (text.isEmpty() || !std::all_of(text.begin(), text.end(), isDigit))
        return {};
    constexpr qint64 limit = std::numeric_limits<int>::max();
    qint64 value = 0;
    for (const QChar digit : text)
        value = std::min(value * 10 + digit.digitValue(), limit);
    return {true, static_cast<int>(isNegative ? -value : value)};
}

TypedSize typedSize(QStringView text)
{
    const auto isCross = [](QChar character) {
        return character == u'x' || character == u'X' || character == u'\u00D7';
    };
    const auto cross = std::find_if(text.begin(), text.end(), isCross);
    if (cross == text.end())
        return {};
    const QStringView first = text.first(cross - text.begin());
    const TypedNumber width = typedNumber(first);
    const TypedNumber height = typedNumber(text.sliced(cross - text.begin() + 1));
    const bool isHexadecimal = first.trimmed() == u"0" && *cross != u'\u00D7';
    if (!width.isWhole || !height.isWhole || isHexadecimal)
        return {};
    return {true, QSize(width.value, height.value)};
}

} // namespace lumora
