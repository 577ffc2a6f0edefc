// SPDX-License-Identifier: MIT
#pragma once

#include "icons/project/ProjectPlan.h"
#include "icons/project/ProjectWriter.h"
#include "icons/today/SetPlans.h"
#include "icons/today/TodaySources.h"
#include "tool/BackgroundJobs.h"
#include "tool/JobResult.h"

#include <QObject>

#include <atomic>
#include <memory>

namespace lumora
{

/// What is to be written.
struct SetRequest
{
    TodaySources sources;
    QList<Derived> derived; ///< what had to be said of the sources
    QList<TodaySet> sets;
    SetOptions options;
    QString folder; ///< the one that the user chose
};

/// What the projects in the chosen folder would get.
struct ProjectOffer
{
    QList<RecognizedProject> projects;
    FilePlan plan;
    QList<ProjectFile> files;
    QStringList notes; ///< what was derived, and the lines that the user has to add
};

/// Writes sets off the main thread: into a new folder, or into the projects in the chosen folder if the user wants that
/// when asked. One run at a time.
class SetGeneration final : public QObject
{
    Q_OBJECT

public:
    explicit SetGeneration(QObject *parent);

    bool isRunning() const { return m_state != State::Idle; }
    /// Looks at the folder, then asks or begins to write.
    void start(const SetRequest &request);
    /// The answers to `projectFound`.
    void writeIntoProject();
    void writeIntoOwnFolder();
    /// Ends the run after the file that is being compared or written. What a project had comes back.
    void cancel();

signals:
    /// There are projects in the folder; the run goes on with an answer.
    void projectFound(const lumora::ProjectOffer &offer);
    /// File `number`, from 1, of `count` is being compared or written.
    void progressed(qsizetype number, qsizetype count);
    /// Nothing was written.
    void refused(const lumora::Failure &failure);
    void ended(const lumora::JobResult &result);

private:
    enum class State { Idle, Looking, Asking, Writing };
    using Canceled = std::shared_ptr<std::atomic<bool>>;

    void writeSets(const QString &note);
    /// Ends the run on the main thread.
    void end(const JobResult &result);
    void refuse(const Failure &failure);
    FileProgress progressOf(const BackgroundJob &job, const Canceled &canceled);

    SetRequest m_request;
    ProjectOffer m_offer;
    Canceled m_canceled;
    State m_state = State::Idle;
    BackgroundJobs m_jobs; ///< last, so that it waits for the run before other members are destroyed
};

} // namespace lumora
