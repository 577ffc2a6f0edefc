// SPDX-License-Identifier: MIT
#include "ReportBody.h"

#include <QGridLayout>
#include <QResizeEvent>

namespace lumora
{

namespace
{

constexpr int factsShare = 3;
constexpr int checksShare = 4;
constexpr int columnGap = 40;

} // namespace

ReportBody::ReportBody(QWidget *parent) : QWidget(parent) {}

void ReportBody::setParts(QWidget *facts, QWidget *checks, int checksIndent)
{
    m_facts = facts;
    m_checks = checks;
    m_checksIndent = checksIndent;
    arrange();
}

void ReportBody::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    const bool wide = event->size().width() >= wideFrom;
    if (wide == m_wide || m_facts == nullptr)
        return;
    m_wide = wide;
    arrange();
}

void ReportBody::setReviewParts(QWidget *findings, QWidget *sections, QWidget *checksHeading)
{
    m_findings = findings;
    m_sections = sections;
    m_heading = checksHeading;
    for (QWidget *part : {m_findings, m_sections, m_heading}) {
        part->setParent(this);
        part->hide();
    }
}

void ReportBody::showReview(Review review)
{
    m_review = review;
    m_findings->setVisible(review == Review::Today);
    m_heading->setVisible(review == Review::Today);
    m_sections->setVisible(review != Review::None);
    arrange();
}

void ReportBody::place(QWidget *part, int row, int column, int rows, int columns)
{
    auto *grid = qobject_cast<QGridLayout *>(layout());
    grid->removeWidget(part);
    grid->addWidget(part, row, column, rows, columns);
}

void ReportBody::arrange()
{
    auto *grid = qobject_cast<QGridLayout *>(layout());
    // Row 0 has the note, the last row takes the remaining space.
    constexpr int lastRow = 6;
    grid->setRowStretch(3, 0);
    grid->setRowStretch(lastRow, 1);
    const bool isToday = m_review == Review::Today;
    place(m_facts, 1, 0);
    if (isToday && m_wide) {
        place(m_findings, 1, 1, 2, 1);
        place(m_sections, 2, 0);
        place(m_heading, 4, 0, 1, 2);
        place(m_checks, 5, 0, 1, 2);
    } else if (isToday) {
        place(m_findings, 2, 0);
        place(m_sections, 3, 0);
        place(m_heading, 4, 0);
        place(m_checks, 5, 0);
    } else {
        place(m_checks, m_wide ? 1 : 2, m_wide ? 1 : 0);
        if (m_sections != nullptr)
            place(m_sections, 3, 0, 1, m_wide ? 2 : 1);
    }
    // Beside long findings the facts keep to the top.
    grid->setRowStretch(2, isToday && m_wide ? 1 : 0);
    grid->setHorizontalSpacing(m_wide ? columnGap : 0);
    grid->setColumnStretch(0, factsShare);
    grid->setColumnStretch(1, m_wide ? checksShare : 0);
    const bool rightToLeft = layoutDirection() == Qt::RightToLeft;
    const int indent = m_wide || isToday ? 0 : m_checksIndent;
    m_checks->setContentsMargins(rightToLeft ? 0 : indent, 0, rightToLeft ? indent : 0, 0);
}

} // namespace lumora
