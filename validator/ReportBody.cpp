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

void ReportBody::arrange()
{
    auto *grid = qobject_cast<QGridLayout *>(layout());
    grid->removeWidget(m_facts);
    grid->removeWidget(m_checks);
    // Row 0 has the note, the last row takes the remaining space.
    grid->addWidget(m_facts, 1, 0);
    grid->addWidget(m_checks, m_wide ? 1 : 2, m_wide ? 1 : 0);
    grid->setColumnStretch(0, factsShare);
    grid->setColumnStretch(1, m_wide ? checksShare : 0);
    const bool rightToLeft = layoutDirection() == Qt::RightToLeft;
    const int indent = m_wide ? 0 : m_checksIndent;
    m_checks->setContentsMargins(rightToLeft ? 0 : indent, 0, rightToLeft ? indent : 0, 0);
}

} // namespace lumora
