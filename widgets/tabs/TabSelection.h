// SPDX-License-Identifier: MIT
#pragma once

#include <set>

namespace lumora
{

/// Indexes in ascending order.
using IndexSet = std::set<int>;

/// The indexes of a bar's selected tabs, in single or multiple selection. Knows no items; negative indexes are ignored.
class TabSelection
{
public:
    const IndexSet &indexes() const { return m_indexes; }
    bool isEmpty() const { return m_indexes.empty(); }
    bool contains(int index) const { return m_indexes.count(index) != 0; }
    /// The first selected index; -1 if there is none.
    int first() const { return m_indexes.empty() ? -1 : *m_indexes.begin(); }

    bool isMultiple() const { return m_multiple; }
    /// Leaving multiple selection keeps only the first selected index.
    void setMultiple(bool multiple);

    /// Adds the indexes, only the first of them in single selection. Keeps the present selection only if `extending` is
    /// set in multiple selection. An empty set changes nothing.
    void select(const IndexSet &indexes, bool extending);
    void deselect(const IndexSet &indexes);
    /// Adds all indexes except that of the last item.
    void selectAllOf(int itemCount);
    void clear() { m_indexes.clear(); }

private:
    IndexSet m_indexes;
    bool m_multiple = false;
};

/// The slot at x, for slots of that width that begin at startX; negative left of the first slot.
int slotAtX(double x, double startX, double itemWidth);

} // namespace lumora
