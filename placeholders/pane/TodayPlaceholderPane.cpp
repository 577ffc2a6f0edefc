// SPDX-License-Identifier: MIT
#include "TodayPlaceholderPane.h"

#include "LookFields.h"
#include "ScreenshotReport.h"
#include "SetTiles.h"
#include "tool/DropHighlight.h"
#include "tool/DropView.h"
#include "tool/JobResultView.h"
#include "tool/style/ButtonStyle.h"
#include "tool/style/ElidedLabel.h"
#include "tool/style/LabelStyle.h"
#include "tool/style/Panel.h"
#include "tool/style/ToolTip.h"
#include "widgets/buttons/HoverButton.h"
#include "widgets/progress/LBProgressBar.h"
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

constexpr int margin = 16;
constexpr int gap = 12;
constexpr int leftWidth = 264;
constexpr int panelPadding = 16;
constexpr int headerHeight = 36;
constexpr int buttonHeight = 36;
constexpr int buttonMargin = 32;
constexpr int barHeight = 24;
constexpr int textSize = 13;
constexpr int titleSize = 15;
/// The switch between the sides is in the corner.
constexpr int cornerWidth = 176;

HoverButton *makeButton(const QString &text)
{
    auto *button = new HoverButton;
    styleButton(button, text, palette::placeholders, palette::placeholdersBorder);
    button->setFixedHeight(buttonHeight);
    button->setMinimumWidth(button->fontMetrics().horizontalAdvance(text) + 2 * buttonMargin);
    return button;
}

} // namespace

TodayPlaceholderPane::TodayPlaceholderPane(QWidget *parent)
    : QWidget(parent), m_fields(new LookFields), m_tiles(new SetTiles), m_dropView(new DropView),
      m_summary(new ElidedLabel), m_pages(new QStackedWidget), m_report(new ScreenshotReport),
      m_bottom(new QStackedWidget), m_checkButton(makeButton(qtTrId("SHOT_CHECK"))),
      m_generateButton(makeButton(qtTrId("GENERATE"))), m_backButton(makeButton(qtTrId("SHOT_BACK"))),
      m_cancelButton(makeButton(qtTrId("CANCEL"))), m_progressBar(new LBProgressBar), m_progressLabel(new QLabel),
      m_currentLabel(new ElidedLabel), m_resultView(new JobResultView)
{
    auto *left = new Panel;
    left->setFixedWidth(leftWidth);
    auto *leftColumn = new QVBoxLayout(left);
    leftColumn->setContentsMargins(panelPadding, panelPadding, panelPadding, panelPadding);
    leftColumn->addWidget(m_fields);

    m_bottom->addWidget(makeActions());
    m_bottom->addWidget(makeProgress());
    m_bottom->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    auto *right = new QVBoxLayout;
    right->setSpacing(gap);
    right->addWidget(makeDropArea(), 1);
    right->addWidget(m_bottom);
    right->addWidget(m_resultView);

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(margin, margin, margin, margin);
    row->setSpacing(margin);
    row->addWidget(left);
    row->addLayout(right, 1);

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
    styleLabel(m_summary, latoBold(titleSize), palette::chromeText);
    m_summary->setFixedHeight(headerHeight);

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
    auto *header = new QHBoxLayout;
    header->addWidget(m_summary, 1);
    header->addSpacing(cornerWidth);
    auto *column = new QVBoxLayout(m_dropView);
    column->setContentsMargins(panelPadding, 4, panelPadding, panelPadding);
    column->setSpacing(4);
    column->addLayout(header);
    column->addWidget(m_pages, 1);
    column->addWidget(hint);
    return m_dropView;
}

QWidget *TodayPlaceholderPane::makeActions()
{
    auto *actions = new QWidget;
    auto *row = new QHBoxLayout(actions);
    row->setContentsMargins({});
    row->setSpacing(gap);
    row->addWidget(m_checkButton);
    row->addStretch(1);
    row->addWidget(m_backButton);
    row->addWidget(m_generateButton);
    m_checkButton->setToolTip(tipWithKeys(qtTrId("SHOT_CHECK_TIP"), QKeySequence::Open));
    return actions;
}

QWidget *TodayPlaceholderPane::makeProgress()
{
    m_progressBar->setLightColor(palette::placeholders);
    m_progressBar->setDarkColor(palette::placeholdersBorder);
    m_progressBar->setAccessibleName(qtTrId("PLACEHOLDER_PROGRESS"));
    m_progressBar->setFixedHeight(barHeight);
    styleLabel(m_progressLabel, latoBold(textSize), palette::chromeText);
    styleLabel(m_currentLabel, latoRegular(textSize), palette::chromeText);
    auto *progress = new QWidget;
    auto *texts = new QHBoxLayout;
    texts->addWidget(m_progressLabel);
    texts->addWidget(m_currentLabel, 1);
    auto *column = new QVBoxLayout;
    column->setSpacing(0);
    column->addWidget(m_progressBar);
    column->addLayout(texts);
    auto *row = new QHBoxLayout(progress);
    row->setContentsMargins({});
    row->setSpacing(gap);
    row->addLayout(column, 1);
    row->addWidget(m_cancelButton);
    return progress;
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

void TodayPlaceholderPane::beginProgress(qsizetype total)
{
    m_resultView->clear();
    m_progressBar->setMaxValue(static_cast<double>(total));
    m_progressBar->setDoubleValue(0);
    m_cancelButton->setEnabled(true);
    m_fields->setEnabled(false);
    m_pages->setEnabled(false);
    m_bottom->setCurrentIndex(1);
    m_progressBar->startAnimation();
}

void TodayPlaceholderPane::showProgress(qsizetype done, qsizetype total, const QString &name)
{
    m_progressBar->setDoubleValue(static_cast<double>(done));
    m_progressLabel->setText(qtTrId("SCALER_PROGRESS")
                                 .replace("[DONE]"_L1, QString::number(done))
                                 .replace("[COUNT]"_L1, QString::number(total)));
    m_currentLabel->setText(name);
}

void TodayPlaceholderPane::endProgress()
{
    m_progressBar->stopAnimation();
    m_fields->setEnabled(true);
    m_pages->setEnabled(true);
    m_bottom->setCurrentIndex(0);
}

} // namespace lumora
