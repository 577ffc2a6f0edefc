// SPDX-License-Identifier: MIT
#include "TypedSize.h"

#include "PlaceholderSizes.h"
#include "foundation/LeadingInteger.h"

namespace lumora
{

namespace
{

bool startsWithNumber(QStringView text)
{
    text = text.trimmed();
    if (text.startsWith(u'-') || text.startsWith(u'+'))
        text = text.sliced(1);
    return !text.isEmpty() && text.front() >= u'0' && text.front() <= u'9';
}

} // namespace

std::optional<QSize> typedPlaceholderSize(QStringView text)
{
    // A unit may contain an x ("300px x 200"); the separator is the x with a number after it.
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar character = text.at(i);
        const bool cross = character == u'x' || character == u'X' || character == u'\u00D7';
        if (!cross || !startsWithNumber(text.sliced(i + 1)))
            continue;
        const QSize size(leadingInteger(text.first(i)), leadingInteger(text.sliced(i + 1)));
        if (isPlaceholderEdge(size.width()) && isPlaceholderEdge(size.height()))
            return size;
        return std::nullopt;
    }
    return std::nullopt;
}

} // namespace lumora
