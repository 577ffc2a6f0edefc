// SPDX-License-Identifier: MIT
#include "TodayResizerPane.h"

#include "ScalingChoices.h"
#include "ScalingPlanView.h"
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
#include "widgets/style/ImageView.h"
#include "widgets/style/Palette.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QStackedWidget>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int margin = 16;
constexpr int gap = 8;
constexpr int leftWidth = 264;
constexpr int panelPadding = 16;
constexpr int headerHeight = 36;
constexpr int buttonHeight = 36;
constexpr int buttonMargin = 32;
constexpr int barHeight = 24;
constexpr int textSize = 13;
constexpr int titleSize = 15;
constexpr QSize dropImageSize(192, 160);
/// The switch between the sides is in the corner.
constexpr int cornerWidth = 176;

HoverButton *makeButton(const QString &text)
{
    auto *button = new HoverButton;
    styleButton(button, text, palette::resizer, palette::resizerBorder);
    button->setFixedHeight(buttonHeight);
    button->setMinimumWidth(button->fontMetrics().horizontalAdvance(text) + 2 * buttonMargin);
    return button;
}

} // namespace

TodayResizerPane::TodayResizerPane(QWidget *parent)
    : QWidget(parent), m_choices(new ScalingChoices), m_dropView(new DropView), m_summary(new ElidedLabel),
      m_pages(new QStackedWidget), m_planView(new ScalingPlanView), m_bottom(new QStackedWidget),
      m_filesButton(makeButton(qtTrId("SCALER_FILES_BUTTON"))),
      m_folderButton(makeButton(qtTrId("SCALER_FOLDER_BUTTON"))), m_writeButton(makeButton(qtTrId("SCALER_WRITE"))),
      m_cancelButton(makeButton(qtTrId("CANCEL"))), m_progressBar(new LBProgressBar), m_progressLabel(new QLabel),
      m_currentLabel(new ElidedLabel), m_resultView(new JobResultView)
{
    auto *left = new Panel;
    left->setFixedWidth(leftWidth);
    auto *leftColumn = new QVBoxLayout(left);
    leftColumn->setContentsMargins(0, panelPadding, 0, panelPadding);
    leftColumn->addWidget(m_choices);

    m_bottom->addWidget(makeActions());
    m_bottom->addWidget(makeProgress());
    m_bottom->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    auto *right = new QVBoxLayout;
    right->setSpacing(margin);
    right->addWidget(makeDropArea(), 1);
    right->addWidget(m_bottom);
    right->addWidget(m_resultView);

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(margin, margin, margin, margin);
    row->setSpacing(margin);
    row->addWidget(left);
    row->addLayout(right, 1);
    showNote({});
}

QWidget *TodayResizerPane::makeDropArea()
{
    new DropHighlight(m_dropView, palette::resizer);
    m_dropView->setAccessibleName(qtTrId("SCALER_DROP_NAME"));
    m_dropView->setToolTip(tipWithKeys(qtTrId("TIP_DROP"), QKeySequence::Paste));
    styleLabel(m_summary, latoBold(titleSize), palette::chromeText);

    auto *invitation = new QWidget;
    auto *image = new ImageView;
    image->setImageName(u"drop_retina"_s);
    image->setFixedSize(dropImageSize);
    auto *label = new QLabel(qtTrId("SCALER_DROP"));
    styleLabel(label, latoBold(titleSize), palette::chromeText);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    auto *invitationColumn = new QVBoxLayout(invitation);
    invitationColumn->addStretch(1);
    invitationColumn->addWidget(image, 0, Qt::AlignHCenter);
    invitationColumn->addWidget(label);
    invitationColumn->addStretch(1);
    m_pages->addWidget(invitation);
    m_pages->addWidget(m_planView);

    auto *header = new QHBoxLayout;
    header->addWidget(m_summary, 1);
    header->addSpacing(cornerWidth);
    m_summary->setFixedHeight(headerHeight);
    auto *column = new QVBoxLayout(m_dropView);
    column->setContentsMargins(panelPadding, 4, panelPadding, panelPadding);
    column->setSpacing(4);
    column->addLayout(header);
    column->addWidget(m_pages, 1);
    return m_dropView;
}

QWidget *TodayResizerPane::makeActions()
{
    auto *actions = new QWidget;
    auto *row = new QHBoxLayout(actions);
    row->setContentsMargins({});
    row->setSpacing(gap);
    row->addWidget(m_filesButton);
    row->addWidget(m_folderButton);
    row->addStretch(1);
    row->addWidget(m_writeButton);
    m_filesButton->setToolTip(tipWithKeys(qtTrId("SCALER_FILES_BUTTON"), QKeySequence::Open));
    return actions;
}

QWidget *TodayResizerPane::makeProgress()
{
    m_progressBar->setLightColor(palette::resizer);
    m_progressBar->setDarkColor(palette::resizerBorder);
    m_progressBar->setAccessibleName(qtTrId("ACCESSIBLE_RESIZER_PROGRESS"));
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

void TodayResizerPane::showNote(const QString &note)
{
    m_summary->setText(note);
    m_writeButton->setEnabled(false);
    if (note.isEmpty())
        m_pages->setCurrentIndex(0);
}

void TodayResizerPane::showPlan(const DensityPlan &plan)
{
    m_planView->setPlan(plan);
    m_summary->setText(planSummary(plan));
    m_writeButton->setEnabled(plannedFiles(plan) > 0);
    m_pages->setCurrentWidget(m_planView);
    QAccessibleEvent news(m_summary, QAccessible::Alert);
    QAccessible::updateAccessibility(&news);
}

void TodayResizerPane::beginProgress(qsizetype total)
{
    m_resultView->clear();
    m_progressBar->setMaxValue(static_cast<double>(total));
    m_progressBar->setDoubleValue(0);
    m_cancelButton->setEnabled(true);
    m_choices->setEnabled(false);
    m_dropView->setEnabled(false);
    m_bottom->setCurrentIndex(1);
    m_progressBar->startAnimation();
}

void TodayResizerPane::showProgress(qsizetype done, qsizetype total, const QString &name)
{
    m_progressBar->setDoubleValue(static_cast<double>(done));
    m_progressLabel->setText(qtTrId("SCALER_PROGRESS")
                                 .replace("[DONE]"_L1, QString::number(done))
                                 .replace("[COUNT]"_L1, QString::number(total)));
    m_currentLabel->setText(name);
}

void TodayResizerPane::endProgress()
{
    m_progressBar->stopAnimation();
    m_choices->setEnabled(true);
    m_dropView->setEnabled(true);
    m_bottom->setCurrentIndex(0);
}

} // namespace lumora
