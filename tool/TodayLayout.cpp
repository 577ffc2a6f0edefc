// SPDX-License-Identifier: MIT
#include "TodayLayout.h"

#include "DropView.h"
#include "tool/style/ButtonStyle.h"
#include "tool/style/ElidedLabel.h"
#include "tool/style/LabelStyle.h"
#include "tool/style/Panel.h"
#include "widgets/buttons/HoverButton.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QHBoxLayout>

namespace lumora
{

namespace
{

constexpr int margin = 16;
constexpr int choicesWidth = 264;
constexpr int areaTop = 4;
constexpr int areaSpacing = 4;
constexpr int headerHeight = 36;
constexpr int headerTextSize = 15;
constexpr int buttonHeight = 36;
constexpr int buttonMargin = 32;
/// The switch between the sides is in the corner.
constexpr int cornerWidth = 176;

} // namespace

HoverButton *makeActionButton(const QString &text, const QColor &color, const QColor &borderColor)
{
    auto *button = new HoverButton;
    styleButton(button, text, color, borderColor);
    button->setFixedHeight(buttonHeight);
    button->setMinimumWidth(button->fontMetrics().horizontalAdvance(text) + 2 * buttonMargin);
    return button;
}

void layOutSide(QWidget *pane, QWidget *choices, const QList<QWidget *> &work)
{
    auto *panel = new Panel;
    panel->setFixedWidth(choicesWidth);
    auto *panelColumn = new QVBoxLayout(panel);
    // The choices have their own margins at the sides, where a scroll bar may be.
    panelColumn->setContentsMargins(0, margin, 0, margin);
    panelColumn->addWidget(choices);

    auto *column = new QVBoxLayout;
    column->setSpacing(todayGap);
    for (QWidget *part : work)
        column->addWidget(part, part == work.first() ? 1 : 0);

    auto *row = new QHBoxLayout(pane);
    row->setContentsMargins(margin, margin, margin, margin);
    row->setSpacing(margin);
    row->addWidget(panel);
    row->addLayout(column, 1);
}

void layOutDropArea(DropView *area, ElidedLabel *summary, const QList<QWidget *> &content)
{
    styleLabel(summary, latoBold(headerTextSize), palette::chromeText);
    summary->setFixedHeight(headerHeight);
    auto *header = new QHBoxLayout;
    header->addWidget(summary, 1);
    header->addSpacing(cornerWidth);
    auto *column = new QVBoxLayout(area);
    column->setContentsMargins(margin, areaTop, margin, margin);
    column->setSpacing(areaSpacing);
    column->addLayout(header);
    for (QWidget *part : content)
        column->addWidget(part, part == content.first() ? 1 : 0);
}

} // namespace lumora
