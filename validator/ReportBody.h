// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QGridLayout;

namespace lumora
{

/// Has the parts of a report in a grid: the facts, and the checks below them or, if there is space, beside them. In the
/// report on a package of today the findings have that place, and the checks come last.
class ReportBody final : public QWidget
{
    Q_OBJECT

public:
    /// What is known of a package beside its facts and the classic checks.
    enum class Review {
        None,
        Old,   ///< its sections; the store's rules were not asked
        Today, ///< findings and sections
    };

    /// From this width on the parts are side by side, in points.
    static constexpr int wideFrom = 1060;

    explicit ReportBody(QWidget *parent = nullptr);

    /// Both are in this view's grid layout already, the checks in a row of their own below the facts. `checksIndent` is
    /// the indentation of the checks there, so that they align with the facts' texts.
    void setParts(QWidget *facts, QWidget *checks, int checksIndent);
    /// Takes the parts of a review, which are hidden until there is one; the heading is that of the checks.
    void setReviewParts(QWidget *findings, QWidget *sections, QWidget *checksHeading);
    void showReview(Review review);
    bool isWide() const { return m_wide; }

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void arrange();
    void place(QWidget *part, int row, int column, int rows = 1, int columns = 1);

    QWidget *m_facts = nullptr;
    QWidget *m_checks = nullptr;
    QWidget *m_findings = nullptr;
    QWidget *m_sections = nullptr;
    QWidget *m_heading = nullptr;
    Review m_review = Review::None;
    int m_checksIndent = 0;
    bool m_wide = false;
};

} // namespace lumora
