// SPDX-License-Identifier: MIT
#include "TodayDevicePane.h"

#include "ModelFilterView.h"
#include "ModelTable.h"
#include "ModelTiles.h"
#include "devices/today/ModelChoices.h"
#include "tool/style/LabelStyle.h"
#include "tool/style/Panel.h"
#include "tool/style/ToolTip.h"
#include "widgets/buttons/IconButton.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"
#include "widgets/style/SlimScrollBars.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QShortcut>
#include <QStackedWidget>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int margin = 16;
constexpr int leftWidth = 264;
constexpr int headerHeight = 28;
constexpr int sideMargin = 16;
constexpr int countSize = 13;
/// The switch between the sides is in the corner.
constexpr int cornerWidth = 176;
/// From the panel's edge to the end of the switch, and of the tiles below.
constexpr int switchMargin = 24;

void styleSmall(IconButton *button)
{
    button->setNormalColor(palette::devices);
    button->setHoverColor(palette::devicesBorder);
    button->setActiveColor(palette::devicesBorder);
    button->setFixedHeight(headerHeight);
}

} // namespace

TodayDevicePane::TodayDevicePane(std::span<const DeviceModel> models, QWidget *parent)
    : QWidget(parent), m_filters(new ModelFilterView(models)), m_tiles(new ModelTiles(models)), m_table(new ModelTable),
      m_pages(new QStackedWidget), m_count(new QLabel), m_compare(new IconButton), m_back(new IconButton),
      m_mark(new IconButton), m_escape(new QShortcut(Qt::Key_Escape, this))
{
    auto *left = new Panel;
    left->setFixedWidth(leftWidth);
    auto *leftColumn = new QVBoxLayout(left);
    leftColumn->setContentsMargins(0, 16, 0, 16);
    leftColumn->addWidget(m_filters);

    setUpHeader();
    m_pages->addWidget(m_tiles);
    m_pages->addWidget(m_table);
    auto *header = new QHBoxLayout;
    header->setContentsMargins(sideMargin, 0, sideMargin, 0);
    header->setSpacing(8);
    header->addWidget(m_back);
    header->addWidget(m_mark);
    header->addWidget(m_count);
    header->addStretch(1);
    header->addWidget(m_compare);
    header->addSpacing(cornerWidth);
    auto *right = new Panel;
    auto *rightColumn = new QVBoxLayout(right);
    rightColumn->setContentsMargins(0, 8, 0, 8);
    rightColumn->addLayout(header);
    auto *pages = new QHBoxLayout;
    pages->setSpacing(0);
    pages->addWidget(m_pages);
    pages->addSpacing(switchMargin - ModelTiles::endMargin - SlimScrollBars::extent);
    rightColumn->addLayout(pages, 1);

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(margin, margin, margin, margin);
    row->setSpacing(margin);
    row->addWidget(left);
    row->addWidget(right, 1);

    connect(m_filters, &ModelFilterView::changed, this, &TodayDevicePane::filter);
    connect(m_tiles, &ModelTiles::comparedChanged, this, &TodayDevicePane::showCompared);
    connect(m_tiles, &ModelTiles::opened, this, [this](std::size_t index) {
        m_openedFrom = index;
        open({index});
    });
    connect(m_table, &ModelTable::copied, this, &TodayDevicePane::copied);
    filter();
    showCompared();
}

void TodayDevicePane::setUpHeader()
{
    styleLabel(m_count, latoBold(countSize), palette::chromeText);
    m_back->setText(qtTrId("DEVICES_BACK"));
    m_back->setToolTip(tipWithKeys(qtTrId("DEVICES_BACK_TIP"), m_escape->key()));
    m_back->hide();
    m_mark->hide();
    m_compare->setToolTip(qtTrId("DEVICES_COMPARE_TIP"));
    styleSmall(m_back);
    styleSmall(m_mark);
    styleSmall(m_compare);
    connect(m_back, &IconButton::clicked, this, &TodayDevicePane::returnToTiles);
    connect(m_compare, &IconButton::clicked, this, [this] {
        m_openedFrom = m_tiles->compared().front();
        open(m_tiles->compared());
    });
    connect(m_mark, &IconButton::clicked, this, [this] {
        m_tiles->setCompared(toggledChoice(m_tiles->compared(), m_openedFrom));
        showCompared();
    });
    m_escape->setContext(Qt::WidgetWithChildrenShortcut);
    m_escape->setEnabled(false);
    connect(m_escape, &QShortcut::activated, this, &TodayDevicePane::returnToTiles);
}

bool TodayDevicePane::showsTable() const
{
    return m_pages->currentWidget() == m_table;
}

void TodayDevicePane::filter()
{
    const int fitting = m_tiles->filter(m_filters->filter());
    m_count->setText(qtTrId("DEVICES_FIT")
                         .replace("[COUNT]"_L1, QString::number(fitting))
                         .replace("[ALL]"_L1, QString::number(m_tiles->groups().size())));
    // What was required is to be seen.
    if (showsTable())
        returnToTiles();
}

void TodayDevicePane::showCompared()
{
    const std::size_t count = m_tiles->compared().size();
    m_compare->setText(qtTrId("DEVICES_COMPARE").replace("[COUNT]"_L1, QString::number(count)));
    m_compare->setEnabled(count >= 2);
    const bool isMarked = std::ranges::find(m_tiles->compared(), m_openedFrom) != m_tiles->compared().end();
    m_mark->setText(isMarked ? qtTrId("DEVICES_UNMARK") : qtTrId("DEVICES_MARK"));
}

void TodayDevicePane::open(const std::vector<std::size_t> &indexes)
{
    std::vector<ModelGroup> groups;
    groups.reserve(indexes.size());
    for (const std::size_t index : indexes)
        groups.push_back(m_tiles->groups().at(index));
    m_table->showModels(groups);
    m_pages->setCurrentWidget(m_table);
    showCompared();
    m_back->show();
    m_mark->setVisible(indexes.size() == 1);
    m_count->hide();
    m_compare->hide();
    m_escape->setEnabled(true);
    m_back->setFocus(Qt::TabFocusReason);
}

void TodayDevicePane::returnToTiles()
{
    const bool hadFocus =
        m_back->hasFocus() || m_mark->hasFocus() || m_table->isAncestorOf(QApplication::focusWidget());
    m_pages->setCurrentWidget(m_tiles);
    m_back->hide();
    m_mark->hide();
    m_escape->setEnabled(false);
    m_count->show();
    m_compare->show();
    if (hadFocus)
        m_tiles->focusTile(m_openedFrom);
}

} // namespace lumora
