// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>

#include <memory>
#include <mutex>

namespace lumora
{

/// The one object of its kind that the whole program shares: made once, at first use, from whichever thread, and
/// deleted with the application, while widgets may still be deleted. One per type.
template <typename Object> class SharedInstance
{
public:
    Object *get()
    {
        std::call_once(m_once, [] {
            instance() = std::make_unique<Object>();
            qAddPostRoutine([] { instance().reset(); });
        });
        return instance().get();
    }
    bool exists() const { return instance() != nullptr; }

private:
    static std::unique_ptr<Object> &instance()
    {
        static std::unique_ptr<Object> object;
        return object;
    }

    std::once_flag m_once;
};

} // namespace lumora
