// SPDX-License-Identifier: MIT
#include "TodayResizerPane.h"

#include "ScalingChoices.h"
#include "ScalingPlanView.h"
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

constexpr int titleSize = 15;
constexpr QSize dropImageSize(192, 160);

HoverButton *makeButton(const QString &text)
{
    return makeActionButton(text, palette::resizer, palette::resizerBorder);
}

} // namespace

TodayResizerPane::TodayResizerPane(QWidget *parent)
    : QWidget(parent), m_choices(new ScalingChoices), m_dropView(new DropView), m_summary(new ElidedLabel),
      m_pages(new QStackedWidget), m_planView(new ScalingPlanView), m_bottom(new QStackedWidget),
      m_filesButton(makeButton(qtTrId("SCALER_FILES_BUTTON"))),
      m_folderButton(makeButton(qtTrId("SCALER_FOLDER_BUTTON"))), m_writeButton(makeButton(qtTrId("SCALER_WRITE"))),
      m_progress(new JobProgress(qtTrId("ACCESSIBLE_RESIZER_PROGRESS"), palette::resizer, palette::resizerBorder)),
      m_resultView(new JobResultView)
{
    m_bottom->addWidget(makeActions());
    m_bottom->addWidget(m_progress);
    m_bottom->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    layOutSide(this, m_choices, {makeDropArea(), m_bottom, m_resultView});
    showNote({});
}

QWidget *TodayResizerPane::makeDropArea()
{
    new DropHighlight(m_dropView, palette::resizer);
    m_dropView->setAccessibleName(qtTrId("SCALER_DROP_NAME"));
    m_dropView->setToolTip(tipWithKeys(qtTrId("TIP_DROP"), QKeySequence::Paste));

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

    layOutDropArea(m_dropView, m_summary, {m_pages});
    return m_dropView;
}

QWidget *TodayResizerPane::makeActions()
{
    auto *actions = new QWidget;
    auto *row = new QHBoxLayout(actions);
    row->setContentsMargins({});
    row->setSpacing(todayGap);
    row->addWidget(m_filesButton);
    row->addWidget(m_folderButton);
    row->addStretch(1);
    row->addWidget(m_writeButton);
    m_filesButton->setToolTip(tipWithKeys(qtTrId("SCALER_FILES_BUTTON"), QKeySequence::Open));
    return actions;
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

void TodayResizerPane::beginReading()
{
    m_bottom->setCurrentWidget(m_progress);
    m_progress->beginReading();
}

void TodayResizerPane::beginProgress(qsizetype total)
{
    m_resultView->clear();
    m_choices->setEnabled(false);
    m_dropView->setEnabled(false);
    m_bottom->setCurrentWidget(m_progress);
    m_progress->begin(total);
}

void TodayResizerPane::endProgress()
{
    m_progress->end();
    m_choices->setEnabled(true);
    m_dropView->setEnabled(true);
    m_bottom->setCurrentIndex(0);
}

} // namespace lumora
