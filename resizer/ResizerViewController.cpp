// SPDX-License-Identifier: MIT
#include "ResizerViewController.h"

#include "DownscaleBatch.h"
#include "RetinaName.h"
#include "RetinaPicture.h"
#include "foundation/Log.h"
#include "pictures/PictureReader.h"
#include "resizer/pane/TodayResizerPane.h"
#include "resizer/pane/TodayScaling.h"
#include "tool/DropHighlight.h"
#include "tool/FailureText.h"
#include "tool/style/ButtonStyle.h"
#include "tool/style/LabelStyle.h"
#include "tool/style/ToolTip.h"
#include "ui_ResizerViewController.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QFileInfo>
#include <QHash>

#include <algorithm>

namespace lumora
{

namespace
{

/// The text with its first two "%i" replaced. Does not use printf, so that a wrong text table cannot read memory.
QString progressText(QString text, qsizetype done, qsizetype total)
{
    const QString place = QStringLiteral("%i");
    qsizetype from = 0;
    for (const qsizetype number : {done, total}) {
        const qsizetype at = text.indexOf(place, from);
        if (at < 0)
            break;
        const QString digits = QString::number(number);
        text.replace(at, place.size(), digits);
        from = at + digits.size();
    }
    return text;
}

/// Two sources of the same name have one half, and the later one replaces the earlier.
void markReplaced(std::vector<PlannedPicture> &plan)
{
    QHash<QString, QString> lastSource;
    for (auto picture = plan.rbegin(); picture != plan.rend(); ++picture) {
        if (!picture->leftOut.isEmpty())
            continue;
        const QString written = singleResolutionName(picture->path);
        picture->replacedBy = lastSource.value(written);
        if (picture->replacedBy.isEmpty())
            lastSource.insert(written, picture->path);
    }
}

} // namespace

ResizerViewController::ResizerViewController(const Services &services, QObject *parent)
    : ToolViewController(services, parent), m_ui(std::make_unique<Ui::ResizerViewController>())
{
    m_ui->setupUi(view());
    setUpAppearance();
    connect(m_ui->browseButton, &HoverButton::clicked, this, &ResizerViewController::browseButtonPressed);
    m_ready.setSingleShot(true);
    m_ready.setInterval(noticeDuration);
    connect(&m_ready, &QTimer::timeout, this, &ResizerViewController::readyForUse);
    connect(m_ui->cancelButton, &HoverButton::clicked, this, &ResizerViewController::cancelPressed);
    connect(m_ui->planView->goOnButton(), &HoverButton::clicked, this, &ResizerViewController::openChooseDestination);
    m_reading = new FileReading(services.fileReader, this);
    readyForUse();
    setUpResult(m_ui->resultView, palette::resizer, palette::resizerBorder);
    setUpToday();
    createPopup();
}

ResizerViewController::~ResizerViewController() = default;

void ResizerViewController::setUpAppearance()
{
    new DropHighlight(m_ui->dropView, palette::resizer);
    m_ui->dropView->setDelegate(this);
    m_ui->dropView->setAccessibleName(qtTrId("ACCESSIBLE_RESIZER_DROP"));
    m_ui->dropImage->setImageName(QStringLiteral("drop_retina"));
    styleLabel(m_ui->browseLabel, latoBold(15), palette::chromeText);
    m_ui->browseLabel->setText(qtTrId("RESIZER_BROWSE_LABEL"));
    styleButton(m_ui->browseButton, qtTrId("BROWSE"), palette::resizer, palette::resizerBorder);
    m_ui->browseButton->setToolTip(tipWithKeys(qtTrId("TIP_BROWSE"), QKeySequence::Open));
    m_ui->dropView->setToolTip(tipWithKeys(qtTrId("TIP_DROP"), QKeySequence::Paste));

    m_ui->progressBar->setLightColor(palette::resizer);
    m_ui->progressBar->setDarkColor(palette::resizerBorder);
    m_ui->progressBar->setAccessibleName(qtTrId("ACCESSIBLE_RESIZER_PROGRESS"));
    styleLabel(m_ui->progressLabel, latoBold(15), palette::chromeText);
    styleLabel(m_ui->currentLabel, latoRegular(13), palette::chromeText);
    styleButton(m_ui->cancelButton, qtTrId("CANCEL"), palette::resizer, palette::resizerBorder);
    m_ui->alertImage->setImageName(QStringLiteral("resizer_done"));
    styleLabel(m_ui->alertLabel, latoBold(25), palette::chromeText);
    m_ui->alertLabel->setText(qtTrId("RESIZER_DONE"));
}

void ResizerViewController::setUpToday()
{
    m_today = new TodayScaling(services(), this);
    connect(m_today, &TodayScaling::jobEnded, this, &ResizerViewController::jobEnded);
    addToday([this](QWidget *pane) {
        QWidget *today = m_today->makePane(pane);
        m_today->pane()->dropView()->setDelegate(this);
        setUpResult(m_today->pane()->resultView(), palette::resizer, palette::resizerBorder);
        return today;
    });
    // A drop elsewhere in the window goes to the classic view, also while the side of today covers it.
    connect(sides(), &PaneSides::shown, this,
            [this](ToolSide side) { m_ui->dropView->setTakesWhileHidden(side == ToolSide::Today); });
}

bool ResizerViewController::isToday() const
{
    return sides()->side() == ToolSide::Today && m_today->pane() != nullptr;
}

// Taking files

void ResizerViewController::dropViewReceivedFiles(const QStringList &files)
{
    if (isToday()) {
        m_today->take(files);
        return;
    }
    m_sourceImages.clear();
    std::vector<PlannedPicture> plan;
    for (const QString &path : files) {
        const bool isTaken = isDoubleResolution(path);
        if (isTaken)
            m_sourceImages << path;
        plan.push_back({path, isTaken ? QString() : failureReason({FailureCode::NotMarked, path, {}}), {}});
    }
    markReplaced(plan);
    m_ui->planView->setPlan(plan);
    lookAt(0);
    if (m_sourceImages.isEmpty()) {
        showPopupWithTitle(qtTrId("RESIZER_ALERT_TITLE"), qtTrId("RESIZER_ALERT_MESSAGE"), m_ui->browseLabel, true);
        return;
    }
    m_savePath = QFileInfo(m_sourceImages.constFirst()).path();
    m_browsePath = m_savePath;
    openChooseDestination();
}

void ResizerViewController::lookAt(qsizetype index)
{
    m_reading->stop();
    if (index >= std::min<qsizetype>(m_sourceImages.size(), RetinaPlanView::rowLimit))
        return;
    const QString path = m_sourceImages.at(index);
    m_reading->read(path, largestPictureFile, [=, this](const Result<QByteArray> &bytes) -> FileReading::Conclusion {
        const Result<QSize> stored = bytes ? storedPixelSize(bytes.value(), path) : Result<QSize>(bytes.failure());
        const Result<QSize> half = stored ? halvedSize(stored.value(), path) : stored;
        return [=, this] {
            if (half)
                m_ui->planView->setSizes(path, stored.value(), half.value());
            else
                m_ui->planView->setProblem(path, failureReason(half.failure()));
            // Queued, so that the window handles other events between two files.
            QMetaObject::invokeMethod(
                this,
                [=, this] {
                    if (!m_reading->isReading() && m_sourceImages.value(index) == path)
                        lookAt(index + 1);
                },
                Qt::QueuedConnection);
        };
    });
}

void ResizerViewController::browseButtonPressed()
{
    if (isToday())
        m_today->chooseFiles();
    // The shortcut also works while the button is hidden.
    else if (!isWorking())
        openBrowsePanel();
}

void ResizerViewController::paste()
{
    const QStringList files = services().clipboard.files();
    if ((isToday() || !isWorking()) && !files.isEmpty())
        dropViewReceivedFiles(files);
}

void ResizerViewController::openBrowsePanel()
{
    const FileRequest request{
        qtTrId("RESIZER_BROWSE_PANEL"), m_browsePath, {qtTrId("FILTER_PNG") + QStringLiteral(" (*.png)")}, true};
    services().fileChooser.chooseFiles(window(), request,
                                       [this](const QStringList &paths) { dropViewReceivedFiles(paths); });
}

void ResizerViewController::openChooseDestination()
{
    services().folderChooser.chooseFolder(window(), {qtTrId("RESIZER_DESTINATION_PANEL"), m_savePath},
                                          [this](const QString &path) {
                                              m_savePath = path;
                                              beginResizingAndSaving();
                                          });
}

// The states

void ResizerViewController::beginResizingAndSaving()
{
    m_ready.stop();
    m_reading->stop();
    m_ui->planView->clear();
    m_ui->resultView->clear();
    // In this order, so that the focus moves from Browse to Cancel.
    setProgressVisible(true);
    setDropAreaVisible(false);
    createImagesFromDataPaths(m_sourceImages);
}

void ResizerViewController::doneResizingAndSaving()
{
    setProgressVisible(false);
    setNoticeVisible(true);
    jobEnded();
    m_ready.start();
}

void ResizerViewController::readyForUse()
{
    setDropAreaVisible(true);
    setProgressVisible(false);
    setNoticeVisible(false);
}

void ResizerViewController::setDropAreaVisible(bool visible)
{
    m_ui->dropView->setVisible(visible);
    m_ui->dropImage->setVisible(visible);
    m_ui->browseLabel->setVisible(visible);
    m_ui->browseButton->setVisible(visible);
}

void ResizerViewController::setProgressVisible(bool visible)
{
    m_ui->progressBar->setVisible(visible);
    m_ui->progressLabel->setVisible(visible);
    m_ui->currentLabel->setVisible(visible);
    m_ui->cancelButton->setVisible(visible);
    if (visible)
        m_ui->progressBar->startAnimation();
    else
        m_ui->progressBar->stopAnimation();
}

void ResizerViewController::setNoticeVisible(bool visible)
{
    m_ui->alertImage->setVisible(visible);
    m_ui->alertLabel->setVisible(visible);
}

bool ResizerViewController::isWorking() const
{
    return m_ui->dropView->isHidden();
}

// The batch

void ResizerViewController::createImagesFromDataPaths(const QStringList &paths)
{
    if (paths.isEmpty())
        return;
    m_ui->progressLabel->setText(progressText(qtTrId("RESIZER_PROGRESS"), 0, paths.size()));
    showCurrent(paths.constFirst());
    m_cancel = std::stop_source();
    m_jobs.start([this, paths, savePath = m_savePath, cancel = m_cancel,
                  reader = services().fileReader](const BackgroundJob &job) mutable {
        const std::stop_callback closing(job.stopToken(), [&cancel] { cancel.request_stop(); });
        const BatchSource source{[reader](const QString &path) { return reader->read(path, largestPictureFile); },
                                 cancel.get_token()};
        const float step = 100.0F / static_cast<float>(paths.size());
        BatchEnd end{savePath, paths.size()};
        const auto report = [&](qsizetype index, const DownscaledFile &file) {
            end.done = index + 1;
            if (!file.outcome)
                end.failures.push_back(file.outcome.failure());
            job.post([this, end, step, next = paths.value(end.done)] {
                showProgress(end.done, end.total, step);
                if (end.done == end.total)
                    showEnd(end);
                else
                    showCurrent(next);
            });
            return !cancel.stop_requested();
        };
        lumora::createImagesFromDataPaths(paths, savePath, report, source);
        if (end.done == end.total)
            return;
        job.post([this, end] { showEnd(end); });
        if (job.isStopRequested())
            logLine(QStringLiteral("Closed after %1 of %2 pictures").arg(end.done).arg(end.total));
    });
}

void ResizerViewController::cancelPressed()
{
    m_cancel.request_stop();
    m_ui->cancelButton->setEnabled(false);
}

void ResizerViewController::showCurrent(const QString &path)
{
    m_ui->currentLabel->setText(QFileInfo(path).fileName());
}

void ResizerViewController::showProgress(qsizetype done, qsizetype total, float step)
{
    m_ui->progressLabel->setText(progressText(qtTrId("RESIZER_PROGRESS"), done, total));
    m_ui->progressBar->setDoubleValue(m_ui->progressBar->doubleValue() + static_cast<double>(step));
}

void ResizerViewController::showEnd(const BatchEnd &end)
{
    m_ui->progressBar->setDoubleValue(0);
    m_ui->cancelButton->setEnabled(true);
    const bool isWhole = end.done == end.total;
    if (isWhole) {
        doneResizingAndSaving();
    } else {
        jobEnded();
        readyForUse();
    }
    const qsizetype written = end.done - std::ssize(end.failures);
    JobResult result = jobResult(countedPictures, written, end.total, end.folder, end.failures);
    if (!isWhole)
        result.failures << qtTrId("RESULT_CANCELED");
    m_ui->resultView->setResult(result);
}

} // namespace lumora
