// SPDX-License-Identifier: MIT
#include "ScalingPlanView.h"

#include "tool/FailureText.h"
#include "tool/style/TableStyle.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QHeaderView>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

enum Column { Name, Size, Note };

constexpr int textSize = 13;
constexpr int nameWidth = 220;
constexpr int sizeWidth = 100;

QString sizeText(QSize size)
{
    const QString text = u"%1 × %2"_s.arg(size.width()).arg(size.height());
    // In a line that runs from the right, width and height would change places.
    return QGuiApplication::isRightToLeft() ? QChar(0x2066) + text + QChar(0x2069) : text;
}

QString counted(const char *one, const char *several, qsizetype count)
{
    return count == 1 ? qtTrId(one) : qtTrId(several).replace("[COUNT]"_L1, QString::number(count));
}

/// What is wrong with a picture's place or kind is worded for it alone.
QString reasonOf(const Failure &failure)
{
    const bool isWorded = failure.code == FailureCode::InvalidValue || failure.code == FailureCode::MissingContent;
    return isWorded && !failure.detail.isEmpty() ? failure.detail.words() : failureReason(failure);
}

QString noteOf(const PlannedTarget &target)
{
    QStringList notes;
    if (target.rounded && target.written)
        notes << qtTrId("SCALER_ROUNDED");
    if (target.exists)
        notes << (target.written ? qtTrId("SCALER_REPLACES") : qtTrId("SCALER_KEPT"));
    return notes.join(u", "_s);
}

} // namespace

ScalingPlanView::ScalingPlanView(QWidget *parent) : QTreeWidget(parent)
{
    setHeaderLabels({qtTrId("SCALER_PLAN_FILE"), qtTrId("SCALER_PLAN_SIZE"), qtTrId("SCALER_PLAN_NOTE")});
    setAccessibleName(qtTrId("SCALER_PLAN"));
    setUniformRowHeights(true);
    styleTable(this, palette::resizer);
    setColumnWidth(Name, nameWidth);
    setColumnWidth(Size, sizeWidth);
}

void ScalingPlanView::setPlan(const DensityPlan &plan)
{
    clear();
    for (std::size_t row = 0; row < std::min(plan.sources.size(), rowLimit); ++row)
        addSource(plan.sources[row]);
    addRest(plan.sources.size());
    for (std::size_t row = 0; row < std::min(plan.failures.size(), rowLimit); ++row)
        addFailure(plan.failures[row]);
    addRest(plan.failures.size());
    expandAll();
}

void ScalingPlanView::addSource(const PlannedSource &source)
{
    auto *row = new QTreeWidgetItem(this);
    row->setText(Name, QFileInfo(source.source).fileName());
    row->setToolTip(Name, source.source);
    row->setText(Size, sizeText(source.size));
    row->setText(Note, source.kind == SourceKind::Drawings ? qtTrId("SCALER_DRAWING") : densityText(source.density));
    row->setFont(Name, latoBold(textSize));
    for (const PlannedTarget &target : source.pictures) {
        auto *result = new QTreeWidgetItem(row);
        const QFileInfo file(target.target);
        // Where the folder states the density, the name alone would be the same for all.
        const bool isSameName = file.fileName() == QFileInfo(source.source).fileName();
        result->setText(Name, isSameName ? file.dir().dirName() + u'/' + file.fileName() : file.fileName());
        result->setToolTip(Name, target.target);
        result->setText(Size, sizeText(target.size));
        result->setText(Note, noteOf(target));
        result->setToolTip(Note, result->text(Note));
        if (target.exists) {
            for (const Column column : {Name, Size, Note})
                result->setForeground(column, target.written ? palette::errorDark : palette::placeholderText);
        }
    }
}

void ScalingPlanView::addFailure(const Failure &failure)
{
    auto *row = new QTreeWidgetItem(this);
    const QString reason = reasonOf(failure);
    row->setText(Name, QFileInfo(failure.subject).fileName());
    row->setToolTip(Name, failure.subject);
    row->setFont(Name, latoBold(textSize));
    // A reason is longer than a note.
    auto *line = new QTreeWidgetItem(row);
    line->setText(Name, qtTrId("SCALER_LEFT_OUT").replace("[REASON]"_L1, reason));
    line->setToolTip(Name, reason);
    line->setForeground(Name, palette::errorDark);
    line->setFirstColumnSpanned(true);
}

void ScalingPlanView::addRest(std::size_t count)
{
    if (count <= rowLimit)
        return;
    auto *row = new QTreeWidgetItem(this);
    row->setText(Name, qtTrId("SCALER_MORE").replace("[COUNT]"_L1, QString::number(count - rowLimit)));
}

QString planSummary(const DensityPlan &plan)
{
    qsizetype kept = 0;
    qsizetype replaced = 0;
    qsizetype rounded = 0;
    for (const PlannedSource &source : plan.sources) {
        for (const PlannedTarget &target : source.pictures) {
            kept += target.written ? 0 : 1;
            replaced += target.exists && target.written ? 1 : 0;
            rounded += target.rounded && target.written ? 1 : 0;
        }
    }
    const qsizetype files = plannedFiles(plan);
    QStringList parts{counted("SCALER_ONE_FILE", "SCALER_FILES", files)};
    if (kept > 0)
        parts << qtTrId("SCALER_SUM_KEPT").replace("[COUNT]"_L1, QString::number(kept));
    if (replaced > 0)
        parts << qtTrId("SCALER_SUM_REPLACED").replace("[COUNT]"_L1, QString::number(replaced));
    if (rounded > 0)
        parts << qtTrId("SCALER_SUM_ROUNDED").replace("[COUNT]"_L1, QString::number(rounded));
    if (!plan.failures.empty())
        parts << qtTrId("SCALER_SUM_LEFT").replace("[COUNT]"_L1, QString::number(plan.failures.size()));
    return parts.join(u" · "_s);
}

} // namespace lumora
