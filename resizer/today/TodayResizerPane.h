// SPDX-License-Identifier: MIT
#pragma once

#include "resizer/densities/DensityPlan.h"

#include <QWidget>

class QLabel;
class QStackedWidget;

namespace lumora
{

class DropView;
class ElidedLabel;
class HoverButton;
class JobResultView;
class LBProgressBar;
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
    HoverButton *cancelButton() const { return m_cancelButton; }
    LBProgressBar *progressBar() const { return m_progressBar; }
    QLabel *progressLabel() const { return m_progressLabel; }
    ElidedLabel *currentLabel() const { return m_currentLabel; }
    JobResultView *resultView() const { return m_resultView; }

    /// Shows a text in place of the plan's summary, and no plan that could be run.
    void showNote(const QString &note);
    void showPlan(const DensityPlan &plan);
    void beginProgress(qsizetype total);
    /// The name is that of the source in work.
    void showProgress(qsizetype done, qsizetype total, const QString &name);
    void endProgress();

private:
    QWidget *makeDropArea();
    QWidget *makeActions();
    QWidget *makeProgress();

    ScalingChoices *m_choices;
    DropView *m_dropView;
    ElidedLabel *m_summary;
    QStackedWidget *m_pages;
    ScalingPlanView *m_planView;
    QStackedWidget *m_bottom;
    HoverButton *m_filesButton;
    HoverButton *m_folderButton;
    HoverButton *m_writeButton;
    HoverButton *m_cancelButton;
    LBProgressBar *m_progressBar;
    QLabel *m_progressLabel;
    ElidedLabel *m_currentLabel;
    JobResultView *m_resultView;
};

} // namespace lumora
