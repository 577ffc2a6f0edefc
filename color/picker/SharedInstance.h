// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>

#include <memory>

namespace lumora
{

/// The one object of its type that the whole program shares: made at first use and deleted with the application, while
/// widgets can still be deleted; null from then on. Main thread only.
template <typename Object> class SharedInstance
{
public:
    Object *get()
    {
        if (!m_made) {
            m_made = true;
            instance() = std::make_unique<Object>();
            qAddPostRoutine([] { instance().reset(); });
        }
        return instance().get();
    }
    bool exists() const { return instance() != nullptr; }

private:
    static std::unique_ptr<Object> &instance()
    {
        static std::unique_ptr<Object> object;
        return object;
    }

    bool m_made = false;
};

} // namespace lumora
