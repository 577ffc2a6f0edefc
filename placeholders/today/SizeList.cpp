// SPDX-License-Identifier: MIT
#include "SizeList.h"

#include "placeholders/PlaceholderSizes.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

Result<std::vector<ListedSize>> sizesFromList(const QString &text)
{
    static const QRegularExpression gap(u"[\\s,;]+"_s);
    static const QRegularExpression size(u"^(\\d{1,4})[xX\u00D7](\\d{1,4})(?:@([1-4])[xX])?$"_s);
    std::vector<ListedSize> sizes;
    const QStringList parts = text.split(gap, Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        const auto match = size.match(part);
        const ListedSize listed{{match.captured(1).toInt(), match.captured(2).toInt()},
                                match.captured(3).isEmpty() ? 1 : match.captured(3).toInt()};
        const QSize pixels = listed.pixels();
        if (!match.hasMatch() || !isPlaceholderEdge(pixels.width()) || !isPlaceholderEdge(pixels.height()))
            return Failure{FailureCode::InvalidValue, part, {}};
        if (std::ranges::find(sizes, listed) != sizes.end())
            continue;
        if (sizes.size() == mostListedSizes)
            return Failure{
                FailureCode::TooLarge, part, {"DETAIL_MORE_SIZES", {{"[COUNT]", QString::number(mostListedSizes)}}}};
        sizes.push_back(listed);
    }
    if (sizes.empty())
        return Failure{FailureCode::InvalidValue, text, {}};
    return sizes;
}

QString sizeText(const ListedSize &size)
{
    const QString plain = u"%1x%2"_s.arg(size.points.width()).arg(size.points.height());
    return size.scale == 1 ? plain : QString(plain + u"@%1x"_s.arg(size.scale));
}

} // namespace lumora
