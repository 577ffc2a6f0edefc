// SPDX-License-Identifier: MIT
#include "SetGeneration.h"

#include "foundation/ExportFolder.h"
#include "icons/check/IconCheck.h"
#include "icons/check/ProjectCheck.h"
#include "icons/today/Motifs.h"
#include "icons/today/TodayExport.h"
#include "tool/FailureText.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

QStringList derivedLines(const QList<Derived> &derived)
{
    QStringList lines;
    for (const Derived &one : derived) {
        const char *key = derivationTexts[static_cast<std::size_t>(one.derivation)].textKey;
        // The command line names its own option.
        const QString text = qtTrId(one.derivation == Derivation::IconFlattened ? "ICONS_FLATTENED" : key);
        lines << (one.detail.isEmpty() ? text : text + u" ("_s + one.detail + u')');
    }
    return lines;
}

/// Adds what was found in the written sets: errors are failures.
void addFindings(const IconCheck &check, const QString &folder, JobResult &result)
{
    for (const IconFinding &finding : check.findings) {
        const IconRuleInfo &info = infoOf(finding.rule);
        QString line = QDir(folder).relativeFilePath(finding.path) + u": "_s + qtTrId(info.titleKey);
        if (!finding.evidence.isEmpty())
            line += u" ("_s + finding.evidence.words() + u')';
        line += u"; "_s + qtTrId(info.fixKey);
        (info.severity == FindingSeverity::Error ? result.failures : result.notes) << line;
    }
}

/// Names only the folder itself: the pane has little room beside the buttons.
JobResult filesResult(qsizetype written, qsizetype wanted, const QString &folder, const std::vector<Failure> &failures)
{
    JobResult result = jobResult(countedFiles, written, wanted, folder, failures);
    result.summary.replace(shortFolder(folder), QFileInfo(folder).fileName());
    return result;
}

JobResult resultOf(const TodayExport &run, qsizetype wanted)
{
    const QList<Failure> failures = run.failures();
    JobResult result =
        filesResult(run.files.size() - failures.size(), wanted, run.folder, {failures.begin(), failures.end()});
    if (run.isStopped)
        result.failures.prepend(qtTrId("RESULT_CANCELED"));
    return result;
}

} // namespace

SetGeneration::SetGeneration(QObject *parent) : QObject(parent), m_canceled(std::make_shared<std::atomic<bool>>(false))
{
}

void SetGeneration::start(const SetRequest &request)
{
    m_request = request;
    m_state = State::Looking;
    m_canceled = std::make_shared<std::atomic<bool>>(false);
    m_jobs.start([this, request, canceled = m_canceled](const BackgroundJob &job) {
        ProjectOffer offer;
        offer.projects = recognizeProjects(request.folder);
        if (offer.projects.isEmpty()) {
            job.post([this] { writeSets({}); });
            return;
        }
        const Motifs motifs(request.sources, MacForm::Body);
        Result<ProjectPlan> plan = planProjects(request.folder, motifs, {});
        const Result<QList<ProjectFile>> files =
            plan ? compareWithProject(request.folder, plan.value().files, motifs, progressOf(job, canceled))
                 : plan.failure();
        if (!files && files.failure().code == FailureCode::Stopped) {
            job.post(
                [this, count = plan.value().files.files.size()] { end(filesResult(0, count, m_request.folder, {})); });
            return;
        }
        if (!files && files.failure().code == FailureCode::HasTransparency) {
            job.post([this, failure = files.failure()] { refuse(failure); });
            return;
        }
        if (!files) {
            // It cannot be written into; the sets beside it still can.
            job.post([this, failure = files.failure()] {
                writeSets(failureLines({failure}, m_request.folder).join(u"; "_s));
            });
            return;
        }
        offer.plan = plan.value().files;
        offer.files = files.value();
        offer.notes = derivedLines(request.derived + plan.value().files.derived);
        for (const QString &line : plan.value().files.linesToAdd)
            offer.notes << qtTrId("CLI_ICONS_LINE_TO_ADD").replace("[LINE]"_L1, line);
        job.post([this, offer] {
            if (*m_canceled) {
                end(filesResult(0, offer.files.size(), m_request.folder, {}));
                return;
            }
            m_offer = offer;
            m_state = State::Asking;
            emit projectFound(m_offer);
        });
    });
}

FileProgress SetGeneration::progressOf(const BackgroundJob &job, const Canceled &canceled)
{
    return [this, &job, canceled](qsizetype number, qsizetype count, const QString &) {
        job.post([this, number, count] { emit progressed(number, count); });
        return !*canceled && !job.isStopRequested();
    };
}

void SetGeneration::writeIntoProject()
{
    m_state = State::Writing;
    m_jobs.start([this, folder = m_request.folder, offer = m_offer, canceled = m_canceled](const BackgroundJob &job) {
        const Outcome written = lumora::writeIntoProject(folder, offer.files, progressOf(job, canceled));
        const qsizetype count = offer.files.size();
        JobResult result = filesResult(written ? count : 0, count, folder,
                                       written ? std::vector<Failure>() : std::vector{written.failure()});
        if (written) {
            result.notes = offer.notes;
            addFindings(checkProject(folder, offer.plan), folder, result);
        }
        job.post([this, result] { end(result); });
    });
}

void SetGeneration::writeIntoOwnFolder()
{
    writeSets({});
}

void SetGeneration::writeSets(const QString &note)
{
    m_state = State::Writing;
    m_jobs.start([this, request = m_request, note, canceled = m_canceled](const BackgroundJob &job) {
        const Motifs motifs(request.sources, MacForm::Body);
        const Result<FilePlan> plan = planSets(request.sets, motifs, request.options);
        if (!plan) {
            job.post([this, failure = plan.failure()] { refuse(failure); });
            return;
        }
        const Result<ExportFolder> folder = makeExportFolder(request.folder, u"icons"_s);
        if (!folder) {
            job.post([this, failure = folder.failure()] { refuse(failure); });
            return;
        }
        const TodayExport run = writePlan(plan.value(), motifs, folder.value().path, progressOf(job, canceled));
        JobResult result = resultOf(run, plan.value().files.size());
        if (!note.isEmpty())
            result.notes << note;
        if (!run.isStopped)
            addFindings(checkSets(run.folder, request.sets), run.folder, result);
        result.notes += derivedLines(request.derived + run.derived);
        job.post([this, result] { end(result); });
    });
}

void SetGeneration::cancel()
{
    *m_canceled = true;
    // While the user is being asked, nothing runs that could end.
    if (m_state == State::Asking)
        end(filesResult(0, m_offer.files.size(), m_request.folder, {}));
}

void SetGeneration::end(const JobResult &result)
{
    m_state = State::Idle;
    m_offer = {};
    emit ended(result);
}

void SetGeneration::refuse(const Failure &failure)
{
    m_state = State::Idle;
    m_offer = {};
    emit refused(failure);
}

} // namespace lumora
