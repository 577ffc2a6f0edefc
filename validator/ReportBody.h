// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QGridLayout;

namespace lumora
{

/// Has the two parts of a report in a grid: the facts, and the checks below them or, if there is space, beside them.
class ReportBody final : public QWidget
{
    Q_OBJECT

public:
    /// From this width on the parts are side by side, in points.
    static constexpr int wideFrom = 1060;

    explicit ReportBody(QWidget *parent = nullptr);

    /// Both are in this view's grid layout already, the checks in a row of their own below the facts. `checksIndent` is
    /// the indentation of the checks there, so that they align with the facts' texts.
    void setParts(QWidget *facts, QWidget *checks, int checksIndent);
    bool isWide() const { return m_wide; }

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void arrange();

    QWidget *m_facts = nullptr;
    QWidget *m_checks = nullptr;
    int m_checksIndent = 0;
    bool m_wide = false;
};

} // namespace lumora
