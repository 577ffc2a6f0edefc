// SPDX-License-Identifier: MIT
#include "TodayColorPane.h"

#include "CodeField.h"
#include "ContrastView.h"
#include "FormListView.h"
#include "PaletteView.h"
#include "color/WellColor.h"
#include "color/picker/BFPopoverColorWell.h"
#include "tool/DropView.h"
#include "tool/style/LabelStyle.h"
#include "tool/style/Panel.h"
#include "widgets/buttons/ImageButton.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QAccessible>
#include <QGridLayout>
#include <QLabel>

namespace lumora
{

namespace
{

constexpr int margin = 16;
constexpr int padding = 24;
constexpr int narrowPadding = 16;
constexpr int leftWidth = 320;
constexpr int noteSize = 13;
constexpr QSize wellSize(64, 44);
constexpr QSize pipetteSize(44, 44);

Panel *panelAround(QWidget *content)
{
    auto *panel = new Panel;
    auto *layout = new QVBoxLayout(panel);
    layout->setContentsMargins(padding, padding, padding, padding);
    layout->addWidget(content);
    return panel;
}

} // namespace

TodayColorPane::TodayColorPane(QWidget *parent)
    : QWidget(parent), m_dropView(new DropView(this)), m_field(new CodeField), m_refusal(new QLabel),
      m_pipetteButton(new ImageButton), m_well(new BFPopoverColorWell), m_forms(new FormListView),
      m_contrast(new ContrastView), m_palette(new PaletteView)
{
    m_dropView->setTakesColors(true);
    auto *whole = new QVBoxLayout(this);
    whole->setContentsMargins({});
    whole->addWidget(m_dropView);
    auto *left = new QVBoxLayout;
    left->setSpacing(margin);
    Panel *input = panelAround(makeInput());
    Panel *contrast = panelAround(m_contrast);
    Panel *forms = panelAround(m_forms);
    // The switch between the sides is in the corner.
    forms->layout()->setContentsMargins(8, 8, 8, narrowPadding);
    left->addWidget(input);
    left->addWidget(contrast, 1);
    contrast->layout()->setAlignment(m_contrast, Qt::AlignTop);
    for (Panel *panel : {input, contrast}) {
        panel->setFixedWidth(leftWidth);
        panel->layout()->setContentsMargins(padding, narrowPadding, padding, narrowPadding);
    }
    Panel *colors = panelAround(m_palette);
    colors->layout()->setContentsMargins(padding, narrowPadding, padding, narrowPadding);

    auto *grid = new QGridLayout(m_dropView);
    grid->setContentsMargins(margin, margin, margin, margin);
    grid->setSpacing(margin);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(0, 1);
    grid->addLayout(left, 0, 0);
    grid->addWidget(forms, 0, 1);
    grid->addWidget(colors, 1, 0, 1, 2);
}

QWidget *TodayColorPane::makeInput()
{
    m_field->setAccessibleName(qtTrId("COLOR_ANY_FIELD"));
    m_field->setPlaceholderText(qtTrId("COLOR_ANY_HINT"));
    m_well->setAccessibleName(qtTrId("ACCESSIBLE_COLOR_WELL"));
    m_well->setFixedSize(wellSize);
    m_pipetteButton->setFixedSize(pipetteSize);
    styleLabel(m_refusal, latoRegular(noteSize), palette::chromeText);
    m_refusal->setWordWrap(true);
    m_refusal->setText(qtTrId("COLOR_ANY_HINT"));
    connect(m_field, &CodeField::refusedChanged, this, [this](bool isRefused) {
        m_refusal->setText(isRefused ? qtTrId("COLOR_REFUSED") : qtTrId("COLOR_ANY_HINT"));
        styleLabel(m_refusal, latoRegular(noteSize), isRefused ? palette::errorDark : palette::chromeText);
        m_field->setAccessibleDescription(isRefused ? m_refusal->text() : QString());
    });

    auto *content = new QWidget;
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(m_refusal, 1);
    row->addWidget(m_pipetteButton);
    row->addWidget(m_well);
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins({});
    column->setSpacing(8);
    column->addWidget(m_field);
    column->addLayout(row);
    return content;
}

void TodayColorPane::setColor(const WideColor &color)
{
    m_field->setColor(color);
    // A picker at work keeps its own, finer color.
    if (wellColor(wideColorFrom(m_well->color())) != wellColor(color))
        m_well->setColor(wellColor(color));
    m_forms->setColor(color);
    m_contrast->setColor(color);
}

} // namespace lumora
