// SPDX-License-Identifier: MIT
#include "ToolPalette.h"

#include "foundation/ToolFacts.h"
#include "widgets/style/Palette.h"

using namespace Qt::StringLiterals;

namespace lumora
{

std::vector<NamedColor> toolPalette()
{
    std::vector<NamedColor> colors;
    for (const ToolFacts &tool : toolFacts) {
        const QString name = qtTrId(tool.helpTitleKey);
        colors.push_back({name, tool.color});
        colors.push_back({qtTrId("COLOR_PALETTE_DARK").replace("[NAME]"_L1, name), tool.borderColor});
    }
    colors.push_back({qtTrId("COLOR_PALETTE_TEXT"), rgbaFrom(palette::chromeText)});
    colors.push_back({qtTrId("COLOR_PALETTE_PANEL"), rgbaFrom(palette::panel)});
    colors.push_back({qtTrId("COLOR_PALETTE_RULE"), rgbaFrom(palette::separator)});
    return colors;
}

} // namespace lumora
