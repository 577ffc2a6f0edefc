// SPDX-License-Identifier: MIT
#include "TodayPlaceholders.h"

#include "LookFields.h"
#include "TodayPlaceholderPane.h"
#include "tool/FailureText.h"
#include "tool/FileReading.h"
#include "tool/JobProgress.h"
#include "tool/JobResultView.h"
#include "widgets/buttons/HoverButton.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace lumora
{

JobResult resultOf(const PlaceholderRun &run, qsizetype wanted)
{
    std::vector<Failure> failures;
    qsizetype written = 0;
    for (const PlaceholderFile &file : run.files) {
        if (file.outcome)
            ++written;
        else
            failures.push_back(file.outcome.failure());
    }
    // If the folder could not be created, all other failures follow from that.
    if (run.folderFailure)
        failures = {*run.folderFailure};
    JobResult result = jobResult(countedPictures, written, wanted, run.folder.path, failures);
    if (std::ssize(run.files) < wanted && !run.folderFailure)
        result.failures << qtTrId("RESULT_CANCELED");
    return result;
}

TodayPlaceholders::TodayPlaceholders(const Services &services, QObject *parent) : QObject(parent), m_services(services)
{
    m_patience.setSingleShot(true);
    m_patience.setInterval(FileReading::patience);
}

TodayPlaceholders::~TodayPlaceholders()
{
    m_checking.request_stop();
    m_writing.request_stop();
}

QWidget *TodayPlaceholders::makePane(QWidget *parent)
{
    m_pane = new TodayPlaceholderPane(parent);
    connect(m_pane->generateButton(), &HoverButton::clicked, this, &TodayPlaceholders::generate);
    connect(m_pane->checkButton(), &HoverButton::clicked, this, &TodayPlaceholders::chooseScreenshots);
    connect(m_pane->progress()->cancelButton(), &HoverButton::clicked, this, &TodayPlaceholders::cancel);
    connect(&m_patience, &QTimer::timeout, m_pane, &TodayPlaceholderPane::beginReading);
    return m_pane;
}

void TodayPlaceholders::cancel()
{
    if (!m_isWriting) {
        m_checking.request_stop();
        endChecking();
        m_pane->showSets();
        return;
    }
    m_writing.request_stop();
    m_pane->progress()->cancelButton()->setEnabled(false);
}

// Screenshots

void TodayPlaceholders::chooseScreenshots()
{
    if (m_isWriting)
        return;
    m_services.folderChooser.chooseFolder(m_pane->window(), {qtTrId("SHOT_FOLDER_TITLE"), m_lastFolder},
                                          [this](const QString &folder) { check({folder}); });
}

void TodayPlaceholders::check(const QStringList &paths)
{
    if (m_isWriting || paths.isEmpty())
        return;
    m_lastFolder = QFileInfo(paths.constFirst()).path();
    m_checking.request_stop();
    m_checking = std::stop_source();
    m_pane->resultView()->clear();
    m_pane->showNote(qtTrId("SCALER_READING"));
    m_isChecking = true;
    m_patience.start();
    m_jobs.start([this, paths, reader = m_services.fileReader, stop = m_checking](const BackgroundJob &job) {
        const std::stop_callback closing(job.stopToken(), [stop] { stop.request_stop(); });
        const std::stop_token token = stop.get_token();
        const ReadFile read = [reader](const QString &path, qint64 limit) { return reader->read(path, limit); };
        const std::function<Screenshots()> work = [=] { return readScreenshots(paths, token, read); };
        const std::optional<Screenshots> screenshots = unlessStopped(work, token);
        if (!screenshots)
            return;
        job.post([this, token, screenshots = *screenshots] {
            if (!token.stop_requested())
                showScreenshots(screenshots);
        });
    });
}

void TodayPlaceholders::endChecking()
{
    m_isChecking = false;
    m_patience.stop();
    if (!m_isWriting)
        m_pane->endProgress();
}

void TodayPlaceholders::showScreenshots(const Screenshots &screenshots)
{
    endChecking();
    if (screenshots) {
        m_pane->showReport(screenshots.value());
        return;
    }
    m_pane->showSets();
    emit messageWanted(qtTrId("SHOT_REFUSED"), failureReason(screenshots.failure()), m_pane->checkButton(), true);
}

// Placeholders

void TodayPlaceholders::generate()
{
    // The down-scaler uses the same prompt.
    m_services.folderChooser.chooseFolder(m_pane->window(), {qtTrId("RESIZER_DESTINATION_PANEL"), m_lastFolder},
                                          [this](const QString &path) { write(path); });
}

void TodayPlaceholders::write(const QString &destination)
{
    const std::vector<ListedSize> sizes = m_pane->sizes();
    if (m_isWriting || sizes.empty() || !m_pane->fields()->refusal().isEmpty())
        return;
    m_lastFolder = destination;
    m_isWriting = true;
    m_patience.stop();
    m_writing = std::stop_source();
    const LabeledOptions options = m_pane->fields()->options();
    m_pane->beginProgress(std::ssize(sizes));
    m_pane->progress()->setProgress(0, std::ssize(sizes), labeledFileName(sizes.front(), options.format));
    m_jobs.start([this, sizes, options, destination, look = m_pane->fields()->look(),
                  stop = m_writing](const BackgroundJob &job) {
        const std::stop_callback closing(job.stopToken(), [stop] { stop.request_stop(); });
        const auto written = [&](qsizetype done, qsizetype total) {
            const QString next =
                done < total ? labeledFileName(sizes[static_cast<std::size_t>(done)], options.format) : QString();
            job.post([=, this] { m_pane->progress()->setProgress(done, total, next); });
            return !stop.stop_requested();
        };
        const PlaceholderRun run = saveLabeledPictures(sizes, look, options, destination, written);
        job.post([=, this] { finish(run, std::ssize(sizes)); });
    });
}

void TodayPlaceholders::finish(const PlaceholderRun &run, qsizetype wanted)
{
    m_isWriting = false;
    m_pane->endProgress();
    if (m_isChecking)
        m_patience.start();
    m_pane->resultView()->setResult(resultOf(run, wanted));
    emit jobEnded();
    if (run.folder.nameTaken)
        emit messageWanted(qtTrId("PLACEHOLDER_NEW_FOLDER_ALERT_TITLE"),
                           qtTrId("PLACEHOLDER_NEW_FOLDER_ALERT_MESSAGE").replace("[FOLDER]"_L1, run.folder.name()),
                           m_pane->generateButton(), false);
}

} // namespace lumora
