// SPDX-License-Identifier: MIT
#pragma once

#include "placeholders/PlaceholderExport.h"
#include "placeholders/screenshots/ScreenshotFacts.h"
#include "placeholders/today/SizeList.h"
#include "tool/BackgroundJobs.h"
#include "tool/JobResult.h"
#include "tool/services/Services.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <stop_token>
#include <vector>

namespace lumora
{

class TodayPlaceholderPane;

/// The work of the placeholder tool's side of today: writes the chosen placeholders, and checks dropped screenshots.
class TodayPlaceholders final : public QObject
{
    Q_OBJECT

public:
    explicit TodayPlaceholders(const Services &services, QObject *parent = nullptr);
    ~TodayPlaceholders() override;

    /// Makes the pane as a child of the parent. Call it once.
    QWidget *makePane(QWidget *parent);
    /// Null until it is made.
    TodayPlaceholderPane *pane() const { return m_pane; }
    bool isWriting() const { return m_isWriting; }

    /// Holds these pictures, and those in these folders, against the stores' rules; ignored while placeholders are
    /// written.
    void check(const QStringList &paths);
    void chooseScreenshots();

signals:
    void jobEnded();
    void messageWanted(const QString &title, const QString &message, QWidget *fromView, bool isError);

private:
    using Screenshots = Result<std::vector<ScreenshotFacts>>;

    void showScreenshots(const Screenshots &screenshots);
    void endChecking();
    /// Stops what runs: the batch, or a slow read of screenshots.
    void cancel();
    void generate();
    void write(const QString &destination);
    void finish(const PlaceholderRun &run, qsizetype wanted);

    Services m_services;
    QPointer<TodayPlaceholderPane> m_pane; ///< owned by its parent
    QString m_lastFolder;
    bool m_isWriting = false;
    bool m_isChecking = false;
    QTimer m_patience; ///< runs while screenshots are read and that is not slow yet
    std::stop_source m_checking;
    std::stop_source m_writing;
    BackgroundJobs m_jobs; ///< last, so that it waits for running jobs before other members are destroyed
};

/// The result of a run that was to write `wanted` files.
JobResult resultOf(const PlaceholderRun &run, qsizetype wanted);

} // namespace lumora
