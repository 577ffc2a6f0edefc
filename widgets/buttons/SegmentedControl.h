// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QWidget>

#include <vector>

namespace lumora
{

class Segment;

/// A row of texts, exactly one of which is chosen. Tab reaches the chosen one, the arrow keys choose its neighbors.
/// Assistive technology finds a named group of toggle buttons.
class SegmentedControl final : public QWidget
{
    Q_OBJECT

public:
    /// At least one text; the first one is chosen.
    explicit SegmentedControl(const QStringList &texts, QWidget *parent = nullptr);

    int currentIndex() const { return m_current; }
    /// Chooses without sending `chosen`; ignores an index without a segment.
    void setCurrentIndex(int index);
    const std::vector<Segment *> &segments() const { return m_segments; }

signals:
    /// The user chose another segment than the current one.
    void chosen(int index);

private:
    void choose(int index);

    std::vector<Segment *> m_segments;
    int m_current = 0;
};

} // namespace lumora
