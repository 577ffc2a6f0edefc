// SPDX-License-Identifier: MIT
#pragma once

#include "resizer/densities/DensityPlan.h"

#include <QWidget>

class QStackedWidget;

namespace lumora
{

class DropView;
class ElidedLabel;
class HoverButton;
class JobProgress;
class JobResultView;
class ScalingChoices;
class ScalingPlanView;

/// The down-scaler's side of today: the choices, and beside them the drop area, then the plan, the progress and the
/// result.
class TodayResizerPane final : public QWidget
{
    Q_OBJECT

public:
    explicit TodayResizerPane(QWidget *parent = nullptr);

    ScalingChoices *choices() const { return m_choices; }
    DropView *dropView() const { return m_dropView; }
    ScalingPlanView *planView() const { return m_planView; }
    ElidedLabel *summary() const { return m_summary; }
    HoverButton *filesButton() const { return m_filesButton; }
    HoverButton *folderButton() const { return m_folderButton; }
    HoverButton *writeButton() const { return m_writeButton; }
    JobProgress *progress() const { return m_progress; }
    JobResultView *resultView() const { return m_resultView; }

    /// Shows a text in place of the plan's summary, and no plan that could be run.
    void showNote(const QString &note);
    void showPlan(const DensityPlan &plan);
    /// Offers to stop a slow read, until `endProgress`.
    void beginReading();
    void beginProgress(qsizetype total);
    void endProgress();

private:
    QWidget *makeDropArea();
    QWidget *makeActions();

    ScalingChoices *m_choices;
    DropView *m_dropView;
    ElidedLabel *m_summary;
    QStackedWidget *m_pages;
    ScalingPlanView *m_planView;
    QStackedWidget *m_bottom;
    HoverButton *m_filesButton;
    HoverButton *m_folderButton;
    HoverButton *m_writeButton;
    JobProgress *m_progress;
    JobResultView *m_resultView;
};

} // namespace lumora
