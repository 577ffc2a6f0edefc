// SPDX-License-Identifier: MIT
#pragma once

#include <mutex>
#include <optional>

namespace lumora
{

/// A value that the first thread that asks for it makes; the others wait for it. If making it throws, the next one to
/// ask tries again. `std::call_once` would do the same, but an exception passes the C library there, which ends the
/// process if memory is exhausted.
template <typename Value> class LazyValue
{
public:
    template <typename Make> const Value &get(const Make &make)
    {
        const std::scoped_lock lock(m_mutex);
        if (!m_value)
            m_value.emplace(make());
        return *m_value;
    }

private:
    std::mutex m_mutex;
    std::optional<Value> m_value;
};

} // namespace lumora
