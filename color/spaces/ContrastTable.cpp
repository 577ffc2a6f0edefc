// SPDX-License-Identifier: MIT
#include "ContrastTable.h"

#include <algorithm>

namespace lumora
{

std::array<ContrastRow, 3> contrastTable(const WideColor &color, const WideColor &background)
{
    const Contrast contrast = contrastOf(color, background);
    std::array<ContrastRow, 3> rows{{{ContrastUse::Text, contrast.aa(), contrast.aaa()},
                                     {ContrastUse::LargeText, contrast.aaLarge(), contrast.aaaLarge()},
                                     {ContrastUse::InterfacePart, contrast.interfacePart(), false, false}}};
    constexpr std::array<double, 3> aa{contrastForText, contrastForLargeText, contrastForInterface};
    constexpr std::array<double, 2> aaa{enhancedContrastForText, enhancedContrastForLargeText};
    const double best = std::max(contrastOf(wideColorFromBytes(0, 0, 0), background).ratio,
                                 contrastOf(wideColorFromBytes(255, 255, 255), background).ratio);
    for (std::size_t index = 0; index < rows.size(); ++index) {
        ContrastRow &row = rows[index];
        if (!row.aa)
            row.missed = aa[index];
        else if (row.hasAaa && !row.aaa)
            row.missed = aaa[index];
        row.canPass = row.missed > 0.0 && best >= row.missed;
    }
    return rows;
}

} // namespace lumora
