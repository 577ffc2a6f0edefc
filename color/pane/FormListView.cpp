// SPDX-License-Identifier: MIT
#include "FormListView.h"

#include "FormRowView.h"
#include "tool/style/LabelStyle.h"
#include "widgets/buttons/CheckboxButton.h"
#include "widgets/buttons/SegmentedControl.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"
#include "widgets/style/SlimScrollBars.h"

#include <QLabel>
#include <QScrollArea>
#include <QShortcut>
#include <QVBoxLayout>

#include <array>

namespace lumora
{

namespace
{

constexpr std::array choices{ColorPlatform::Apple, ColorPlatform::Android, ColorPlatform::Flutter, ColorPlatform::Web,
                             ColorPlatform::Qt};
constexpr int titleSize = 18;
constexpr int titleHeight = 28;
constexpr int rowGap = 12;
/// The scroll bar of the list is in the margin, so that the buttons end where the platforms do.
constexpr int sideMargin = 16;
/// In a wide window the codes and their buttons stay together.
constexpr int mostWidth = 720;

QStringList platformNames()
{
    QStringList names;
    for (const ColorPlatform platform : choices)
        names << platformName(platform);
    return names;
}

/// Alt+1 to Alt+9 and Alt+0, then the same with Shift.
QKeySequence keysOf(int index)
{
    const auto digit = static_cast<Qt::Key>(Qt::Key_0 + (index % 10 + 1) % 10);
    return index < 10 ? QKeySequence(Qt::ALT | digit) : QKeySequence(Qt::ALT | Qt::SHIFT | digit);
}

} // namespace

FormListView::FormListView(QWidget *parent)
    : QWidget(parent), m_platforms(new SegmentedControl(platformNames(), this)), m_displayP3(new CheckboxButton(this))
{
    auto *title = new QLabel(qtTrId("COLOR_FORMS"), this);
    styleLabel(title, latoBold(titleSize), palette::color);
    title->setFixedHeight(titleHeight);
    m_platforms->setAccessibleName(qtTrId("COLOR_PLATFORM"));
    m_platforms->setToolTip(qtTrId("COLOR_PLATFORM_TIP"));
    m_displayP3->setText(qtTrId("COLOR_DISPLAY_P3"));
    m_displayP3->setToolTip(qtTrId("COLOR_DISPLAY_P3_TIP"));
    connect(m_platforms, &SegmentedControl::chosen, this, &FormListView::showRows);
    connect(m_displayP3, &CheckboxButton::clicked, this, [this] {
        m_displayP3->setActive(!m_displayP3->isActive());
        showRows();
    });

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(8);
    title->setContentsMargins(sideMargin, 0, sideMargin, 0);
    column->addWidget(title);
    auto *platformRow = new QHBoxLayout;
    platformRow->setContentsMargins(sideMargin, 0, sideMargin, 0);
    m_platforms->setMaximumWidth(mostWidth);
    platformRow->addWidget(m_platforms, 1);
    // Takes what they leave.
    platformRow->addStretch(0);
    column->addLayout(platformRow);
    auto *gamutRow = new QHBoxLayout;
    gamutRow->setContentsMargins(sideMargin, 0, sideMargin, 0);
    gamutRow->addWidget(m_displayP3);
    gamutRow->addStretch(1);
    column->addLayout(gamutRow);
    column->addWidget(makeRows(), 1);
    showRows();
}

QWidget *FormListView::makeRows()
{
    auto *content = new QWidget;
    auto *line = new QHBoxLayout(content);
    line->setContentsMargins({});
    line->setSpacing(0);
    auto *column = new QVBoxLayout;
    line->addSpacing(sideMargin);
    line->addLayout(column, 1);
    line->addSpacing(sideMargin - SlimScrollBars::extent);
    // Takes what the rows leave.
    line->addStretch(0);
    column->setContentsMargins(0, 4, 0, 4);
    column->setSpacing(rowGap);
    const int count = static_cast<int>(colorForms().size());
    for (int index = 0; index < count; ++index) {
        const QKeySequence keys = keysOf(index);
        auto *row = new FormRowView(keys, content);
        row->setMaximumWidth(mostWidth);
        column->addWidget(row);
        m_rows.push_back(row);
        connect(row, &FormRowView::copied, this, &FormListView::copied);
        connect(new QShortcut(keys, this), &QShortcut::activated, row, &FormRowView::copy);
    }
    column->addStretch(1);
    auto *area = new QScrollArea(this);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // The codes keep their width when it is not needed; it is not painted then.
    area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    area->setWidgetResizable(true);
    area->setWidget(content);
    area->viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
    return area;
}

void FormListView::setColor(const WideColor &color)
{
    m_color = color;
    showRows();
}

void FormListView::showRows()
{
    const ColorPlatform first = choices.at(static_cast<std::size_t>(m_platforms->currentIndex()));
    const auto gamut = m_displayP3->isActive() ? FormGamut::DisplayP3 : FormGamut::Srgb;
    const std::vector<FormRow> forms = formRows(m_color, first, gamut);
    for (std::size_t index = 0; index < forms.size(); ++index)
        m_rows[index]->setRow(forms[index]);
}

} // namespace lumora
