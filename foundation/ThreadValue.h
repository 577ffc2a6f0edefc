// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <new>

#include <pthread.h>

namespace lumora
{

/// A value that each thread makes for itself when it first asks, and that is destroyed when the thread ends. For static
/// objects. A `thread_local` object needs memory of the C library before it is made, and the process ends if there is
/// none; this throws `std::bad_alloc`.
template <typename Value> class ThreadValue
{
public:
    ThreadValue() : m_hasKey(::pthread_key_create(&m_key, &destroy) == 0) {}
    /// The first thread ends with the process, which destroys static objects only.
    ~ThreadValue()
    {
        if (!m_hasKey)
            return;
        destroy(::pthread_getspecific(m_key));
        ::pthread_key_delete(m_key);
    }
    ThreadValue(const ThreadValue &) = delete;
    ThreadValue &operator=(const ThreadValue &) = delete;

    /// The calling thread's value.
    Value &get()
    {
        if (!m_hasKey)
            throw std::bad_alloc();
        if (void *value = ::pthread_getspecific(m_key))
            return *static_cast<Value *>(value);
        auto value = std::make_unique<Value>();
        if (::pthread_setspecific(m_key, value.get()) != 0)
            throw std::bad_alloc();
        return *value.release();
    }

private:
    static void destroy(void *value) { delete static_cast<Value *>(value); }

    pthread_key_t m_key{};
    bool m_hasKey;
};

} // namespace lumora
