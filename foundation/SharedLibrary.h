// SPDX-License-Identifier: MIT
#pragma once

namespace lumora
{

/// A library that few runs need, opened by name at its first use: a linked library would cost every start of the
/// command the time to bind its functions.
class SharedLibrary
{
public:
    /// The name is the library's SONAME. An opened library stays open until the program ends.
    explicit SharedLibrary(const char *name);
    bool isOpen() const { return m_handle != nullptr; }

    /// A function; the receiver sets its type.
    class Function
    {
    public:
        template <typename Returned, typename... Arguments> using Pointer = Returned (*)(Arguments...);
        template <typename Returned, typename... Arguments> operator Pointer<Returned, Arguments...>() const
        {
            return reinterpret_cast<Pointer<Returned, Arguments...>>(m_address);
        }

    private:
        friend class SharedLibrary;
        explicit Function(void *address) : m_address(address) {}
        void *m_address;
    };
    /// If the library or its function is missing, the program ends as with the dynamic linker: with a line on stderr
    /// and status 127.
    Function operator[](const char *name) const;

private:
    const char *m_name;
    void *m_handle;
};

} // namespace lumora
