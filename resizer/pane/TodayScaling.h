// SPDX-License-Identifier: MIT
#pragma once

#include "resizer/densities/DensityBatch.h"
#include "tool/BackgroundJobs.h"
#include "tool/services/Services.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <stop_token>

namespace lumora
{

class TodayResizerPane;

/// The work of the down-scaler's side of today: plans what to make of the dropped pictures as soon as they or the
/// choices change, and makes it when the user says so.
class TodayScaling final : public QObject
{
    Q_OBJECT

public:
    explicit TodayScaling(const Services &services, QObject *parent = nullptr);
    ~TodayScaling() override;

    /// Makes the pane as a child of the parent. Call it once.
    QWidget *makePane(QWidget *parent);
    /// Null until it is made.
    TodayResizerPane *pane() const { return m_pane; }

    const DensityPlan &plan() const { return m_plan; }
    bool isWriting() const { return m_isWriting; }

    /// Plans these files and folders in place of the ones before; ignored while a batch runs.
    void take(const QStringList &paths);
    void chooseFiles();

signals:
    void jobEnded();

private:
    /// What a batch has done so far.
    struct Progress
    {
        QString folder; ///< of the results
        qsizetype total = 0;
        qsizetype done = 0; ///< includes failed files
        bool isWhole = false;
        std::vector<Failure> failures = {};
    };

    /// Reads as the desktop does; usable on other threads and after this object.
    ReadFile reading() const;
    void connectPane();
    void chooseFolder();
    void chooseDestination();
    void makePlan();
    void endPlanning();
    void showPlan(const DensityRequest &request, const DensityPlan &plan);
    void write();
    void cancel();
    void showEnd(const Progress &progress);

    Services m_services;
    QPointer<TodayResizerPane> m_pane; ///< owned by its parent
    QStringList m_paths;
    QString m_lastFolder;
    DensityRequest m_request; ///< of the plan
    DensityPlan m_plan;
    bool m_isWriting = false;
    std::stop_source m_planning;
    QTimer m_patience; ///< runs while a plan is made that is not slow yet
    std::stop_source m_writing;
    BackgroundJobs m_jobs; ///< last, so that it waits for running jobs before other members are destroyed
};

} // namespace lumora
