// SPDX-License-Identifier: MIT
#include "TodayPlaceholderPane.h"

#include "LookFields.h"
#include "ScreenshotReport.h"
#include "SetTiles.h"
#include "tool/DropHighlight.h"
#include "tool/DropView.h"
#include "tool/JobProgress.h"
#include "tool/JobResultView.h"
#include "tool/TodayLayout.h"
#include "tool/style/ElidedLabel.h"
#include "tool/style/LabelStyle.h"
#include "tool/style/ToolTip.h"
#include "widgets/buttons/HoverButton.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QAccessible>
#include <QLabel>
#include <QScrollArea>
#include <QStackedWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int textSize = 13;

HoverButton *makeButton(const QString &text)
{
    return makeActionButton(text, palette::placeholders, palette::placeholdersBorder);
}

} // namespace

TodayPlaceholderPane::TodayPlaceholderPane(QWidget *parent)
    : QWidget(parent), m_fields(new LookFields), m_tiles(new SetTiles), m_dropView(new DropView),
      m_summary(new ElidedLabel), m_pages(new QStackedWidget), m_report(new ScreenshotReport),
      m_bottom(new QStackedWidget), m_checkButton(makeButton(qtTrId("SHOT_CHECK"))),
      m_generateButton(makeButton(qtTrId("GENERATE"))), m_backButton(makeButton(qtTrId("SHOT_BACK"))),
      m_progress(new JobProgress(qtTrId("PLACEHOLDER_PROGRESS"), palette::placeholders, palette::placeholdersBorder)),
      m_resultView(new JobResultView)
{
    m_bottom->addWidget(makeActions());
    m_bottom->addWidget(m_progress);
    m_bottom->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    layOutSide(this, m_fields, {makeDropArea(), m_bottom, m_resultView});

    connect(m_fields, &LookFields::changed, this, &TodayPlaceholderPane::showSummary);
    connect(m_tiles, &SetTiles::changed, this, &TodayPlaceholderPane::showSummary);
    connect(m_report, &ScreenshotReport::changed, this, &TodayPlaceholderPane::showSummary);
    connect(m_backButton, &HoverButton::clicked, this, &TodayPlaceholderPane::showSets);
    connect(m_fields, &LookFields::keepWanted, this, [this] {
        m_tiles->addOwn(m_fields->sizes());
        m_fields->clearSizes();
    });
    showSets();
}

QWidget *TodayPlaceholderPane::makeDropArea()
{
    new DropHighlight(m_dropView, palette::placeholders);
    m_dropView->setAccessibleName(qtTrId("SHOT_DROP_NAME"));
    auto *area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setWidgetResizable(true);
    area->setWidget(m_tiles);
    area->viewport()->setAutoFillBackground(false);
    m_tiles->setAutoFillBackground(false);
    m_pages->addWidget(area);
    m_pages->addWidget(m_report);

    auto *hint = new QLabel(qtTrId("SHOT_DROP"));
    styleLabel(hint, latoRegular(textSize), palette::chromeText);
    hint->setWordWrap(true);
    layOutDropArea(m_dropView, m_summary, {m_pages, hint});
    return m_dropView;
}

QWidget *TodayPlaceholderPane::makeActions()
{
    auto *actions = new QWidget;
    auto *row = new QHBoxLayout(actions);
    row->setContentsMargins({});
    row->setSpacing(todayGap);
    row->addWidget(m_checkButton);
    row->addStretch(1);
    row->addWidget(m_backButton);
    row->addWidget(m_generateButton);
    m_checkButton->setToolTip(tipWithKeys(qtTrId("SHOT_CHECK_TIP"), QKeySequence::Open));
    return actions;
}

bool TodayPlaceholderPane::showsReport() const
{
    return m_pages->currentWidget() == m_report;
}

std::vector<ListedSize> TodayPlaceholderPane::sizes() const
{
    std::vector<ListedSize> sizes = m_tiles->chosen();
    addSizes(sizes, m_fields->sizes());
    return sizes;
}

void TodayPlaceholderPane::showSummary()
{
    const std::size_t count = sizes().size();
    m_generateButton->setEnabled(count > 0 && m_fields->refusal().isEmpty());
    m_summary->setText(showsReport() ? m_report->summary()
                       : count == 0  ? qtTrId("PLACEHOLDER_CHOOSE_SETS")
                       : count == 1  ? qtTrId("PLACEHOLDER_ONE_PICTURE")
                                     : qtTrId("PLACEHOLDER_PICTURES").replace("[COUNT]"_L1, QString::number(count)));
}

void TodayPlaceholderPane::showNote(const QString &note)
{
    m_summary->setText(note);
}

void TodayPlaceholderPane::showReport(const std::vector<ScreenshotFacts> &screenshots)
{
    m_pages->setCurrentWidget(m_report);
    m_report->setScreenshots(screenshots);
    m_backButton->show();
    m_generateButton->hide();
    QAccessibleEvent news(m_summary, QAccessible::Alert);
    QAccessible::updateAccessibility(&news);
}

void TodayPlaceholderPane::showSets()
{
    m_pages->setCurrentIndex(0);
    m_generateButton->show();
    m_backButton->hide();
    showSummary();
}

void TodayPlaceholderPane::beginReading()
{
    m_bottom->setCurrentWidget(m_progress);
    m_progress->beginReading();
}

void TodayPlaceholderPane::beginProgress(qsizetype total)
{
    m_resultView->clear();
    m_fields->setEnabled(false);
    m_pages->setEnabled(false);
    m_bottom->setCurrentWidget(m_progress);
    m_progress->begin(total);
}

void TodayPlaceholderPane::endProgress()
{
    m_progress->end();
    m_fields->setEnabled(true);
    m_pages->setEnabled(true);
    m_bottom->setCurrentIndex(0);
}

} // namespace lumora
