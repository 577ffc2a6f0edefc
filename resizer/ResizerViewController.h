// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"
#include "tool/BackgroundJobs.h"
#include "tool/DropView.h"
#include "tool/FileReading.h"
#include "tool/ToolViewController.h"

#include <QTimer>

#include <chrono>
#include <memory>
#include <stop_token>
#include <vector>

namespace Ui
{
class ResizerViewController;
}

namespace lumora
{

class TodayScaling;

/// The retina down-scaler: takes double-resolution PNG files, writes their halves into a folder, and shows the progress
/// and the end.
class ResizerViewController final : public ToolViewController, public DropViewDelegate
{
    Q_OBJECT

public:
    /// How long the notice at the end of a batch is shown.
    static constexpr std::chrono::milliseconds noticeDuration{2000};

    explicit ResizerViewController(const Services &services, QObject *parent = nullptr);
    ~ResizerViewController() override;

    const Ui::ResizerViewController &outlets() const { return *m_ui; }

    /// The accepted files of the last drop or choice, in its order.
    const QStringList &sourceImages() const { return m_sourceImages; }
    /// The folder to write into: that of the first accepted file, until another is chosen.
    const QString &savePath() const { return m_savePath; }
    /// The first accepted file's folder, empty at first.
    const QString &browsePath() const { return m_browsePath; }

    void dropViewReceivedFiles(const QStringList &files) override;
    /// Does nothing: colors are of no use here.
    void dropViewReceivedColor(const QColor &) override {}

    bool takesFiles() const override { return true; }
    void browseButtonPressed() override;
    void paste() override;
    /// The side of today; its pane is null until it is seen first.
    TodayScaling *today() const { return m_today; }

private:
    void setUpToday();
    bool isToday() const;
    void setUpAppearance();
    void openBrowsePanel();
    void openChooseDestination();
    void beginResizingAndSaving();
    void doneResizingAndSaving();
    void readyForUse();
    void createImagesFromDataPaths(const QStringList &paths);
    /// The outcome of a batch.
    struct BatchEnd
    {
        QString folder;
        qsizetype total = 0;
        qsizetype done = 0; ///< includes failed files
        std::vector<Failure> failures = {};
    };

    /// Shows the sizes of the accepted files in the list, beginning with this one.
    void lookAt(qsizetype index);
    void cancelPressed();
    void showCurrent(const QString &path);
    void showProgress(qsizetype done, qsizetype total, float step);
    void showEnd(const BatchEnd &end);
    void setDropAreaVisible(bool visible);
    void setProgressVisible(bool visible);
    void setNoticeVisible(bool visible);
    bool isWorking() const;

    std::unique_ptr<Ui::ResizerViewController> m_ui;
    QStringList m_sourceImages;
    QString m_savePath;
    QString m_browsePath;
    QTimer m_ready;
    FileReading *m_reading = nullptr;
    TodayScaling *m_today = nullptr;
    std::stop_source m_cancel; ///< of the running batch
    BackgroundJobs m_jobs;     ///< last, so that it waits for running jobs before other members are destroyed
};

} // namespace lumora
