// SPDX-License-Identifier: MIT
#include "LeadingInteger.h"

#include <QChar>

#include <algorithm>
#include <cstdint>
#include <limits>

namespace lumora
{

int leadingInteger(QStringView text)
{
    constexpr std::int64_t lowest = std::numeric_limits<int>::min();
    constexpr std::int64_t highest = std::numeric_limits<int>::max();

    qsizetype at = 0;
    while (at < text.size() && text[at].isSpace())
        ++at;
    bool negative = false;
    if (at < text.size() && (text[at] == u'-' || text[at] == u'+')) {
        negative = text[at] == u'-';
        ++at;
    }
    std::int64_t magnitude = 0;
    for (; at < text.size() && text[at] >= u'0' && text[at] <= u'9'; ++at)
        magnitude = std::min(magnitude * 10 + (text[at].unicode() - u'0'), highest + 1);
    return static_cast<int>(std::clamp(negative ? -magnitude : magnitude, lowest, highest));
}

} // namespace lumora
