// SPDX-License-Identifier: MIT
#include "TodayScaling.h"

#include "ScalingChoices.h"
#include "TodayResizerPane.h"
#include "foundation/StoppableRead.h"
#include "tool/FileReading.h"
#include "tool/JobProgress.h"
#include "tool/JobResultView.h"
#include "widgets/buttons/HoverButton.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// The folder in which the results are, or all sub-folders with results.
QString resultFolder(const DensityRequest &request, const QStringList &paths)
{
    if (!request.destination.isEmpty())
        return request.destination;
    const QFileInfo first(paths.value(0));
    return first.isDir() ? first.absoluteFilePath() : first.absolutePath();
}

QString sourceName(const DensityPlan &plan, std::size_t index)
{
    return index < plan.sources.size() ? QFileInfo(plan.sources[index].source).fileName() : QString();
}

} // namespace

TodayScaling::TodayScaling(const Services &services, QObject *parent) : QObject(parent), m_services(services)
{
    m_patience.setSingleShot(true);
    m_patience.setInterval(FileReading::patience);
}

TodayScaling::~TodayScaling()
{
    m_planning.request_stop();
    m_writing.request_stop();
}

QWidget *TodayScaling::makePane(QWidget *parent)
{
    m_pane = new TodayResizerPane(parent);
    connectPane();
    return m_pane;
}

void TodayScaling::connectPane()
{
    connect(m_pane->choices(), &ScalingChoices::changed, this, &TodayScaling::makePlan);
    connect(m_pane->choices(), &ScalingChoices::destinationWanted, this, &TodayScaling::chooseDestination);
    connect(m_pane->filesButton(), &HoverButton::clicked, this, &TodayScaling::chooseFiles);
    connect(m_pane->folderButton(), &HoverButton::clicked, this, &TodayScaling::chooseFolder);
    connect(m_pane->writeButton(), &HoverButton::clicked, this, &TodayScaling::write);
    connect(m_pane->progress()->cancelButton(), &HoverButton::clicked, this, &TodayScaling::cancel);
    connect(&m_patience, &QTimer::timeout, m_pane, &TodayResizerPane::beginReading);
}

// Taking files

void TodayScaling::take(const QStringList &paths)
{
    if (m_isWriting || paths.isEmpty())
        return;
    m_paths = paths;
    m_lastFolder = QFileInfo(paths.constFirst()).path();
    m_pane->resultView()->clear();
    makePlan();
}

void TodayScaling::chooseFiles()
{
    if (m_isWriting)
        return;
    const FileRequest request{qtTrId("SCALER_FILES_TITLE"),
                              m_lastFolder,
                              {qtTrId("SCALER_FILTER") + u" (*.png *.webp *.jpg *.jpeg *.svg)"_s},
                              true};
    m_services.fileChooser.chooseFiles(m_pane->window(), request, [this](const QStringList &paths) { take(paths); });
}

void TodayScaling::chooseFolder()
{
    m_services.folderChooser.chooseFolder(m_pane->window(), {qtTrId("SCALER_FOLDER_TITLE"), m_lastFolder},
                                          [this](const QString &path) { take({path}); });
}

void TodayScaling::chooseDestination()
{
    m_services.folderChooser.chooseFolder(m_pane->window(), {qtTrId("RESIZER_DESTINATION_PANEL"), m_lastFolder},
                                          [this](const QString &path) { m_pane->choices()->setDestination(path); });
}

ReadFile TodayScaling::reading() const
{
    return [reader = m_services.fileReader](const QString &path, qint64 limit) { return reader->read(path, limit); };
}

// The plan

void TodayScaling::makePlan()
{
    m_planning.request_stop();
    if (m_paths.isEmpty() || m_isWriting)
        return;
    const DensityRequest request = m_pane->choices()->request();
    if (request.to.empty()) {
        endPlanning();
        m_pane->showNote(qtTrId("SCALER_NO_DENSITY"));
        return;
    }
    m_pane->showNote(qtTrId("SCALER_READING"));
    m_patience.start();
    m_planning = std::stop_source();
    m_jobs.start([this, request, paths = m_paths, read = reading(), stop = m_planning](const BackgroundJob &job) {
        const std::stop_callback closing(job.stopToken(), [stop] { stop.request_stop(); });
        const std::stop_token token = stop.get_token();
        const std::function<DensityPlan()> work = [=] {
            DensityPlan plan = planDensities(paths, request, token, read);
            const std::vector<Failure> unused = filesWithoutUse(paths, plan);
            plan.failures.insert(plan.failures.end(), unused.begin(), unused.end());
            return plan;
        };
        const std::optional<DensityPlan> plan = unlessStopped(work, token);
        if (!plan)
            return;
        job.post([=, this] {
            if (!token.stop_requested())
                showPlan(request, *plan);
        });
    });
}

void TodayScaling::endPlanning()
{
    m_patience.stop();
    m_pane->endProgress();
}

void TodayScaling::showPlan(const DensityRequest &request, const DensityPlan &plan)
{
    endPlanning();
    m_request = request;
    m_plan = plan;
    m_pane->showPlan(plan);
}

// The batch

void TodayScaling::write()
{
    if (m_isWriting)
        return;
    m_isWriting = true;
    m_writing = std::stop_source();
    const DensityBatchOptions options{m_pane->choices()->webpQuality(), m_request.existing, m_writing.get_token(),
                                      reading()};
    m_pane->beginProgress(plannedFiles(m_plan));
    m_pane->progress()->setProgress(0, plannedFiles(m_plan), sourceName(m_plan, 0));
    m_jobs.start([this, options, plan = m_plan, request = m_request, paths = m_paths,
                  stop = m_writing](const BackgroundJob &job) {
        const std::stop_callback closing(job.stopToken(), [stop] { stop.request_stop(); });
        Progress progress{resultFolder(request, paths), plannedFiles(plan)};
        scaleDensities(plan, options, [&](qsizetype index, const std::vector<ScaledFile> &files) {
            for (const ScaledFile &file : files) {
                ++progress.done;
                if (!file.outcome && file.outcome.failure().code != FailureCode::Stopped)
                    progress.failures.push_back(file.outcome.failure());
                else if (!file.outcome)
                    --progress.done;
            }
            const QString next = sourceName(plan, static_cast<std::size_t>(index) + 1);
            job.post([this, done = progress.done, total = progress.total, next] {
                m_pane->progress()->setProgress(done, total, next);
            });
            return !stop.stop_requested();
        });
        progress.isWhole = progress.done == progress.total;
        job.post([this, progress] { showEnd(progress); });
    });
}

void TodayScaling::cancel()
{
    if (!m_isWriting) {
        m_planning.request_stop();
        endPlanning();
        m_paths.clear();
        m_plan = {};
        m_pane->showNote({});
        return;
    }
    m_writing.request_stop();
    m_pane->progress()->cancelButton()->setEnabled(false);
}

void TodayScaling::showEnd(const Progress &progress)
{
    m_isWriting = false;
    m_pane->endProgress();
    const qsizetype written = progress.done - std::ssize(progress.failures);
    JobResult result = jobResult(countedPictures, written, progress.total, progress.folder, progress.failures);
    if (!progress.isWhole)
        result.failures << qtTrId("RESULT_CANCELED");
    m_pane->resultView()->setResult(result);
    emit jobEnded();
    // What is there now is part of the next plan.
    makePlan();
}

} // namespace lumora
