// SPDX-License-Identifier: MIT
#include "TabSelection.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace lumora
{

void TabSelection::setMultiple(bool multiple)
{
    if (multiple == m_multiple)
        return;
    m_multiple = multiple;
    if (!multiple && m_indexes.size() > 1)
        m_indexes.erase(std::next(m_indexes.begin()), m_indexes.end());
}

void TabSelection::select(const IndexSet &indexes, bool extending)
{
    const auto first = indexes.lower_bound(0);
    if (first == indexes.end())
        return;
    if (!extending || !m_multiple)
        m_indexes.clear();
    if (m_multiple)
        m_indexes.insert(first, indexes.end());
    else
        m_indexes.insert(*first);
}

void TabSelection::deselect(const IndexSet &indexes)
{
    for (const int index : indexes)
        m_indexes.erase(index);
}

void TabSelection::selectAllOf(int itemCount)
{
    for (int index = 0; index < itemCount - 1; ++index)
        m_indexes.insert(index);
}

int slotAtX(double x, double startX, double itemWidth)
{
    constexpr double bound = std::numeric_limits<int>::max() / 2.0;
    return static_cast<int>(std::clamp(std::floor((x - startX) / itemWidth), -bound, bound));
}

} // namespace lumora
