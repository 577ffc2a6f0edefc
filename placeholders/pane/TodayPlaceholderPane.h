// SPDX-License-Identifier: MIT
#pragma once

#include "placeholders/screenshots/ScreenshotFacts.h"
#include "placeholders/today/SizeList.h"

#include <QWidget>

#include <vector>

class QStackedWidget;

namespace lumora
{

class DropView;
class ElidedLabel;
class HoverButton;
class JobProgress;
class JobResultView;
class LookFields;
class ScreenshotReport;
class SetTiles;

/// The placeholder tool's side of today: the look, and beside it the sets to make, or what stores would say about
/// dropped screenshots.
class TodayPlaceholderPane final : public QWidget
{
    Q_OBJECT

public:
    explicit TodayPlaceholderPane(QWidget *parent = nullptr);

    LookFields *fields() const { return m_fields; }
    SetTiles *tiles() const { return m_tiles; }
    DropView *dropView() const { return m_dropView; }
    ScreenshotReport *report() const { return m_report; }
    ElidedLabel *summary() const { return m_summary; }
    HoverButton *checkButton() const { return m_checkButton; }
    HoverButton *generateButton() const { return m_generateButton; }
    HoverButton *backButton() const { return m_backButton; }
    JobProgress *progress() const { return m_progress; }
    JobResultView *resultView() const { return m_resultView; }
    bool showsReport() const;

    /// All sizes that are chosen, no size twice.
    std::vector<ListedSize> sizes() const;

    void showReport(const std::vector<ScreenshotFacts> &screenshots);
    void showSets();
    /// Offers to stop a slow read, until `endProgress`.
    void beginReading();
    void beginProgress(qsizetype total);
    void endProgress();
    /// Shows a text in place of the summary until something changes.
    void showNote(const QString &note);

private:
    QWidget *makeDropArea();
    QWidget *makeActions();
    void showSummary();

    LookFields *m_fields;
    SetTiles *m_tiles;
    DropView *m_dropView;
    ElidedLabel *m_summary;
    QStackedWidget *m_pages;
    ScreenshotReport *m_report;
    QStackedWidget *m_bottom;
    HoverButton *m_checkButton;
    HoverButton *m_generateButton;
    HoverButton *m_backButton;
    JobProgress *m_progress;
    JobResultView *m_resultView;
};

} // namespace lumora
