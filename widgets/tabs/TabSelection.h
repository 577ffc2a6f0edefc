// SPDX-License-Identifier: MIT
#pragma once

#include <set>

namespace lumora
{

/// Indexes in ascending order.
using IndexSet = std::set<int>;

/// Which tabs of a bar are selected, by index, in single or multiple selection. Knows no items; negative indexes are
/// taken for none.
class TabSelection
{
public:
    const IndexSet &indexes() const { return m_indexes; }
    bool isEmpty() const { return m_indexes.empty(); }
    bool contains(int index) const { return m_indexes.count(index) != 0; }
    /// The first selected index, -1 when there is none.
    int first() const { return m_indexes.empty() ? -1 : *m_indexes.begin(); }

    bool isMultiple() const { return m_multiple; }
    /// Leaving multiple selection keeps only the first selected index.
    void setMultiple(bool multiple);

    /// Adds the indexes, only the first of them in single selection. What was selected stays only where extending is
    /// asked for in multiple selection. Nothing changes for an empty set.
    void select(const IndexSet &indexes, bool extending);
    void deselect(const IndexSet &indexes);
    /// Adds the indexes from 0 on, one fewer than there are items: the last item is left out.
    void selectAllOf(int itemCount);
    void clear() { m_indexes.clear(); }

private:
    IndexSet m_indexes;
    bool m_multiple = false;
};

/// The slot at x for slots of a width that begin at startX; negative left of the first.
int slotAtX(double x, double startX, double itemWidth);

} // namespace lumora
