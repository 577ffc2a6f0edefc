// SPDX-License-Identifier: MIT
#include "JobProgress.h"

#include "TodayLayout.h"
#include "tool/style/ElidedLabel.h"
#include "tool/style/LabelStyle.h"
#include "widgets/buttons/HoverButton.h"
#include "widgets/progress/LBProgressBar.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QHBoxLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int barHeight = 24;
constexpr int textSize = 13;

} // namespace

JobProgress::JobProgress(const QString &accessibleName, const QColor &color, const QColor &borderColor, QWidget *parent)
    : QWidget(parent), m_bar(new LBProgressBar), m_count(new QLabel), m_name(new ElidedLabel),
      m_cancelButton(makeActionButton(qtTrId("CANCEL"), color, borderColor))
{
    m_bar->setLightColor(color);
    m_bar->setDarkColor(borderColor);
    m_bar->setAccessibleName(accessibleName);
    m_bar->setFixedHeight(barHeight);
    styleLabel(m_count, latoBold(textSize), palette::chromeText);
    styleLabel(m_name, latoRegular(textSize), palette::chromeText);
    auto *texts = new QHBoxLayout;
    texts->addWidget(m_count);
    texts->addWidget(m_name, 1);
    auto *column = new QVBoxLayout;
    column->setSpacing(0);
    column->addWidget(m_bar);
    column->addLayout(texts);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(todayGap);
    row->addLayout(column, 1);
    row->addWidget(m_cancelButton);
}

void JobProgress::begin(qsizetype total)
{
    m_bar->setMaxValue(static_cast<double>(total));
    m_bar->setDoubleValue(0);
    m_cancelButton->setEnabled(true);
    m_bar->startAnimation();
}

void JobProgress::beginReading()
{
    begin(1);
    m_bar->setDoubleValue(1);
    m_count->setText({});
    m_name->setText({});
}

void JobProgress::setProgress(qsizetype done, qsizetype total, const QString &name)
{
    m_bar->setDoubleValue(static_cast<double>(done));
    m_count->setText(qtTrId("SCALER_PROGRESS")
                         .replace("[DONE]"_L1, QString::number(done))
                         .replace("[COUNT]"_L1, QString::number(total)));
    m_name->setText(name);
}

void JobProgress::end()
{
    m_bar->stopAnimation();
}

} // namespace lumora
