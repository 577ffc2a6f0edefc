// SPDX-License-Identifier: MIT
#include "MemoryBudget.h"

#include <algorithm>

namespace lumora
{

MemoryBudget::Share::Share(MemoryBudget &budget, qint64 bytes)
    : m_budget(budget), m_bytes(std::min(bytes, budget.m_total))
{
    std::unique_lock lock(m_budget.m_mutex);
    m_budget.m_returned.wait(lock, [this] { return m_budget.m_free >= m_bytes; });
    m_budget.m_free -= m_bytes;
}

MemoryBudget::Share::~Share()
{
    {
        const std::lock_guard lock(m_budget.m_mutex);
        m_budget.m_free += m_bytes;
    }
    m_budget.m_returned.notify_all();
}

} // namespace lumora
