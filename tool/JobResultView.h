// SPDX-License-Identifier: MIT
#pragma once

#include "JobResult.h"

#include <QColor>
#include <QWidget>

class QLabel;
class QScrollArea;

namespace lumora
{

class ElidedLabel;
class HoverButton;
class TimedCaption;

/// Shows the result of a job: a summary with buttons that show the folder and copy its path, and the failures and notes
/// below it.
/// Hidden while there is no result.
class JobResultView final : public QWidget
{
    Q_OBJECT

public:
    explicit JobResultView(QWidget *parent = nullptr);

    /// The colors of the buttons: at rest, and under the pointer.
    void setColors(const QColor &normal, const QColor &hover);

    const JobResult &result() const { return m_result; }
    /// An empty result hides the view.
    void setResult(const JobResult &result);
    void clear() { setResult({}); }

    HoverButton *showButton() const { return m_showButton; }
    HoverButton *copyButton() const { return m_copyButton; }
    /// The summary, the failures and the notes, one per line.
    QString text() const;

signals:
    void folderWanted(const QString &folder);
    void pathWanted(const QString &folder);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void setUpFailures();
    void fitFailures();
    void announce();

    JobResult m_result;
    ElidedLabel *m_summary;
    HoverButton *m_showButton;
    HoverButton *m_copyButton;
    QScrollArea *m_failureArea;
    QLabel *m_failures;
    QLabel *m_notes;
    TimedCaption *m_copyCaption;
};

} // namespace lumora
