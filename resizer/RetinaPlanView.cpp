// SPDX-License-Identifier: MIT
#include "RetinaPlanView.h"

#include "tool/JobResult.h"
#include "tool/style/ButtonStyle.h"
#include "tool/style/LabelStyle.h"
#include "tool/style/TableStyle.h"
#include "widgets/buttons/HoverButton.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

enum Column { Name, Now, Then };
/// Of the last column: nothing more is to come.
constexpr int isComplete = Qt::UserRole;

constexpr int gap = 8;
constexpr int nameWidth = 300;
constexpr int sizeWidth = 130;
constexpr int buttonWidth = 180;
constexpr int buttonHeight = 36;

QString sizeText(QSize size)
{
    return u"%1 × %2"_s.arg(size.width()).arg(size.height());
}

} // namespace

RetinaPlanView::RetinaPlanView(QWidget *parent)
    : QWidget(parent), m_summary(new QLabel(this)), m_goOnButton(new HoverButton(this)), m_list(new QTreeWidget(this))
{
    styleLabel(m_summary, latoBold(15), palette::chromeText);
    styleButton(m_goOnButton, qtTrId("RESIZER_CHOOSE_FOLDER"), palette::resizer, palette::resizerBorder);
    m_goOnButton->setFixedSize(buttonWidth, buttonHeight);
    setUpList();
    auto *line = new QHBoxLayout;
    line->addWidget(m_summary, 1);
    line->addWidget(m_goOnButton);
    auto *lines = new QVBoxLayout(this);
    lines->setContentsMargins(0, 0, 0, 0);
    lines->setSpacing(gap);
    lines->addLayout(line);
    lines->addWidget(m_list, 1);
    hide();
}

void RetinaPlanView::setUpList()
{
    m_list->setHeaderLabels({qtTrId("RESIZER_PLAN_PICTURE"), qtTrId("RESIZER_PLAN_NOW"), qtTrId("RESIZER_PLAN_THEN")});
    m_list->setAccessibleName(qtTrId("RESIZER_PLAN"));
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    styleTable(m_list, palette::resizer);
    m_list->setColumnWidth(Name, nameWidth);
    m_list->setColumnWidth(Now, sizeWidth);
}

void RetinaPlanView::setPlan(const std::vector<PlannedPicture> &plan)
{
    m_list->clear();
    const auto taken =
        std::count_if(plan.begin(), plan.end(), [](const PlannedPicture &one) { return one.leftOut.isEmpty(); });
    for (std::size_t row = 0; row < plan.size() && row < rowLimit; ++row)
        addRow(plan[row]);
    const char *key = taken == std::ssize(plan) ? "RESIZER_PLAN_ALL" : "RESIZER_PLAN_SOME";
    m_summary->setText(qtTrId(key)
                           .replace(u"[TAKEN]"_s, QString::number(taken))
                           .replace(u"[LEFT]"_s, QString::number(std::ssize(plan) - taken)));
    m_goOnButton->setVisible(taken > 0);
    setVisible(!plan.empty());
}

void RetinaPlanView::addRow(const PlannedPicture &picture)
{
    auto *row = new QTreeWidgetItem(m_list);
    row->setText(Name, QFileInfo(picture.path).fileName());
    row->setData(Name, Qt::UserRole, picture.path);
    row->setToolTip(Name, picture.path);
    if (!picture.replacedBy.isEmpty())
        markReplaced(row, picture);
    row->setData(Then, isComplete, !picture.leftOut.isEmpty());
    if (picture.leftOut.isEmpty())
        return;
    row->setText(Then, qtTrId("RESIZER_LEFT_OUT").replace(u"[REASON]"_s, picture.leftOut));
    row->setToolTip(Then, picture.leftOut);
    for (const Column column : {Name, Now, Then})
        row->setForeground(column, palette::placeholderText);
}

void RetinaPlanView::markReplaced(QTreeWidgetItem *row, const PlannedPicture &picture)
{
    // The names alone are the same.
    row->setText(Name, shortFolder(picture.path));
    row->setText(Then, qtTrId("RESIZER_REPLACED").replace(u"[NAME]"_s, shortFolder(picture.replacedBy)));
    row->setToolTip(Then, picture.replacedBy);
    row->setForeground(Then, palette::errorDark);
}

QTreeWidgetItem *RetinaPlanView::rowOf(const QString &path) const
{
    for (int row = 0; row < m_list->topLevelItemCount(); ++row) {
        QTreeWidgetItem *item = m_list->topLevelItem(row);
        if (item->data(Name, Qt::UserRole).toString() == path && !item->data(Then, isComplete).toBool())
            return item;
    }
    return nullptr;
}

void RetinaPlanView::setSizes(const QString &path, QSize now, QSize then)
{
    if (QTreeWidgetItem *row = rowOf(path)) {
        const QString note = row->text(Then);
        row->setText(Now, sizeText(now));
        row->setText(Then, note.isEmpty() ? sizeText(then) : sizeText(then) + u" · "_s + note);
        row->setData(Then, isComplete, true);
    }
}

void RetinaPlanView::setProblem(const QString &path, const QString &problem)
{
    if (QTreeWidgetItem *row = rowOf(path)) {
        row->setText(Then, problem);
        row->setData(Then, isComplete, true);
        row->setToolTip(Then, problem);
        row->setForeground(Then, palette::errorDark);
    }
}

} // namespace lumora
