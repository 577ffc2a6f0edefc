// SPDX-License-Identifier: MIT
#include "ResizerViewController.h"

#include "DownscaleBatch.h"
#include "RetinaName.h"
#include "foundation/Log.h"
#include "tool/ButtonStyle.h"
#include "tool/DropHighlight.h"
#include "tool/LabelStyle.h"
#include "ui_ResizerViewController.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QFileInfo>

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
    readyForUse();
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

    m_ui->progressBar->setLightColor(palette::resizer);
    m_ui->progressBar->setDarkColor(palette::resizerBorder);
    m_ui->progressBar->setAccessibleName(qtTrId("ACCESSIBLE_RESIZER_PROGRESS"));
    styleLabel(m_ui->progressLabel, latoBold(15), palette::chromeText);
    m_ui->alertImage->setImageName(QStringLiteral("resizer_done"));
    styleLabel(m_ui->alertLabel, latoBold(25), palette::chromeText);
    m_ui->alertLabel->setText(qtTrId("RESIZER_DONE"));
}

// Taking files

void ResizerViewController::dropViewReceivedFiles(const QStringList &files)
{
    m_sourceImages.clear();
    for (const QString &path : files) {
        if (isDoubleResolution(path))
            m_sourceImages << path;
    }
    if (m_sourceImages.isEmpty()) {
        showPopupWithTitle(qtTrId("RESIZER_ALERT_TITLE"), qtTrId("RESIZER_ALERT_MESSAGE"), m_ui->browseLabel, true);
        return;
    }
    m_savePath = QFileInfo(m_sourceImages.constFirst()).path();
    m_browsePath = m_savePath;
    openChooseDestination();
}

void ResizerViewController::browseButtonPressed()
{
    // The shortcut also works while the button is hidden.
    if (!isWorking())
        openBrowsePanel();
}

void ResizerViewController::paste()
{
    const QStringList files = services().clipboard.files();
    if (!isWorking() && !files.isEmpty())
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
    setDropAreaVisible(false);
    setProgressVisible(true);
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
    m_jobs.start([this, paths, savePath = m_savePath](const BackgroundJob &job) {
        const float step = 100.0F / static_cast<float>(paths.size());
        lumora::createImagesFromDataPaths(paths, savePath, [&](qsizetype index, const DownscaledFile &) {
            job.post([this, done = index + 1, total = paths.size(), step] { showProgress(done, total, step); });
            if (!job.isStopRequested() || index + 1 == paths.size())
                return true;
            logLine(QStringLiteral("Closed after %1 of %2 pictures").arg(index + 1).arg(paths.size()));
            return false;
        });
    });
}

void ResizerViewController::showProgress(qsizetype done, qsizetype total, float step)
{
    m_ui->progressLabel->setText(progressText(qtTrId("RESIZER_PROGRESS"), done, total));
    m_ui->progressBar->setDoubleValue(m_ui->progressBar->doubleValue() + static_cast<double>(step));
    if (done < total)
        return;
    m_ui->progressBar->setDoubleValue(0);
    doneResizingAndSaving();
}

} // namespace lumora
