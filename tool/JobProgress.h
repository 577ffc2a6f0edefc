// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QColor;
class QLabel;

namespace lumora
{

class ElidedLabel;
class HoverButton;
class LBProgressBar;

/// How far a job is: a bar, below it the number of results and the name of the file in work, and a button to cancel.
class JobProgress final : public QWidget
{
    Q_OBJECT

public:
    /// The accessible name is that of the bar.
    JobProgress(const QString &accessibleName, const QColor &color, const QColor &borderColor,
                QWidget *parent = nullptr);

    LBProgressBar *bar() const { return m_bar; }
    QLabel *countLabel() const { return m_count; }
    ElidedLabel *nameLabel() const { return m_name; }
    HoverButton *cancelButton() const { return m_cancelButton; }

    /// Starts at nothing of the total.
    void begin(qsizetype total);
    void setProgress(qsizetype done, qsizetype total, const QString &name);
    /// The same before a job, while it is unknown how much there is to read: the whole bar is striped, without a text.
    void beginReading();
    void end();

private:
    LBProgressBar *m_bar;
    QLabel *m_count;
    ElidedLabel *m_name;
    HoverButton *m_cancelButton;
};

} // namespace lumora
