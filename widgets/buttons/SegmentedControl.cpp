// SPDX-License-Identifier: MIT
#include "SegmentedControl.h"

#include "Segment.h"
#include "widgets/style/AccessibleRole.h"

#include <QHBoxLayout>

namespace lumora
{

SegmentedControl::SegmentedControl(const QStringList &texts, QWidget *parent) : QWidget(parent)
{
    setAccessibleRole(this, QAccessible::Grouping);
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(0);
    const int count = static_cast<int>(texts.size());
    for (int index = 0; index < count; ++index) {
        auto *segment = new Segment(texts[index], {index == 0, index == count - 1}, this);
        row->addWidget(segment);
        m_segments.push_back(segment);
        connect(segment, &Segment::clicked, this, [this, index] { choose(index); });
        connect(segment, &Segment::moved, this, [this, index, count](int step) {
            const int next = index + step;
            if (next < 0 || next >= count)
                return;
            // The focus first: the segment that loses the choice would no longer keep it.
            m_segments[static_cast<std::size_t>(next)]->setFocus(Qt::TabFocusReason);
            choose(next);
        });
    }
    m_segments.front()->setActive(true);
}

void SegmentedControl::setCurrentIndex(int index)
{
    if (index < 0 || index >= static_cast<int>(m_segments.size()) || index == m_current)
        return;
    m_segments[static_cast<std::size_t>(m_current)]->setActive(false);
    m_current = index;
    m_segments[static_cast<std::size_t>(m_current)]->setActive(true);
}

void SegmentedControl::choose(int index)
{
    if (index == m_current)
        return;
    setCurrentIndex(index);
    emit chosen(index);
}

} // namespace lumora
