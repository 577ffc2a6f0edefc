// SPDX-License-Identifier: MIT
#include "ToolPalette.h"

#include "widgets/style/Palette.h"

using namespace Qt::StringLiterals;

namespace lumora
{

std::vector<NamedColor> toolPalette()
{
    struct ToolColors
    {
        QString name;
        QColor color;
        QColor border;
    };
    const ToolColors tools[] = {
        {qtTrId("HELP_ICONS"), palette::icons, palette::iconsBorder},
        {qtTrId("HELP_PLACEHOLDER"), palette::placeholders, palette::placeholdersBorder},
        {qtTrId("HELP_RESIZER"), palette::resizer, palette::resizerBorder},
        {qtTrId("HELP_COLOR"), palette::color, palette::colorBorder},
        {qtTrId("HELP_DEVICES"), palette::devices, palette::devicesBorder},
        {qtTrId("HELP_VALIDATER"), palette::validator, palette::validatorBorder},
    };
    std::vector<NamedColor> colors;
    for (const ToolColors &tool : tools) {
        colors.push_back({tool.name, rgbaFrom(tool.color)});
        QString dark = qtTrId("COLOR_PALETTE_DARK");
        colors.push_back({dark.replace("[NAME]"_L1, tool.name), rgbaFrom(tool.border)});
    }
    colors.push_back({qtTrId("COLOR_PALETTE_TEXT"), rgbaFrom(palette::chromeText)});
    colors.push_back({qtTrId("COLOR_PALETTE_PANEL"), rgbaFrom(palette::panel)});
    colors.push_back({qtTrId("COLOR_PALETTE_RULE"), rgbaFrom(palette::separator)});
    return colors;
}

} // namespace lumora
