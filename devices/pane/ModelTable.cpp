// SPDX-License-Identifier: MIT
#include "ModelTable.h"

#include "FactButton.h"
#include "ModelTexts.h"
#include "tool/style/LabelStyle.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QGridLayout>
#include <QLabel>

#include <algorithm>

namespace lumora
{

namespace
{

constexpr int nameWidth = 112;
constexpr int labelSize = 13;
constexpr int headingSize = 15;
constexpr int margin = 16;

} // namespace

ModelTable::ModelTable(QWidget *parent) : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidgetResizable(true);
    viewport()->setAutoFillBackground(false);
}

void ModelTable::showModels(const std::vector<ModelGroup> &groups)
{
    m_facts.clear();
    auto *content = new QWidget;
    auto *grid = new QGridLayout(content);
    grid->setContentsMargins(margin, margin, margin, margin);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(2);
    grid->setColumnMinimumWidth(0, nameWidth);
    for (std::size_t column = 0; column < groups.size(); ++column) {
        auto *heading = new QLabel(modelName(groups[column]), content);
        styleLabel(heading, latoBold(headingSize), palette::devices);
        heading->setWordWrap(true);
        heading->setContentsMargins(4, 0, 0, 0);
        grid->addWidget(heading, 0, static_cast<int>(column) + 1);
        grid->setColumnStretch(static_cast<int>(column) + 1, 1);
    }
    for (const ComparedFact &row : comparedFacts(groups)) {
        const int line = grid->rowCount();
        const QString name = factWords(row.fact);
        auto *label = new QLabel(name, content);
        styleLabel(label, latoRegular(labelSize), palette::chromeText);
        label->setWordWrap(true);
        label->setFixedWidth(nameWidth);
        label->setContentsMargins(0, 4, 0, 4);
        grid->addWidget(label, line, 0, Qt::AlignTop);
        for (qsizetype column = 0; column < row.values.size(); ++column) {
            const bool isBold = groups.size() == 1 || row.differs;
            auto *fact = new FactButton(name, valueWords(row.fact, row.values[column]), isBold, content);
            // Nobody wants to copy a dash.
            fact->setEnabled(!row.values[column].isEmpty());
            connect(fact, &FactButton::copied, this, &ModelTable::copied);
            grid->addWidget(fact, line, static_cast<int>(column) + 1, Qt::AlignTop);
            m_facts.push_back(fact);
        }
    }
    grid->setRowStretch(grid->rowCount(), 1);
    setWidget(content);
    content->setAutoFillBackground(false);
}

} // namespace lumora
