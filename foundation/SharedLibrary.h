// SPDX-License-Identifier: MIT
#pragma once

namespace lumora
{

/// A library that few runs need, opened by name when it is first asked for: a linked one costs every start of the
/// command the time to bind its functions.
class SharedLibrary
{
public:
    /// The name is the library's SONAME. Where the library is missing, the program ends as the dynamic linker ends
    /// one: a line on stderr and status 127. It stays open until the program ends.
    explicit SharedLibrary(const char *name);

    /// A function whose type the receiver knows.
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
    /// Ends the program in the same way when the library has no such function.
    Function operator[](const char *name) const;

private:
    void *m_handle;
};

} // namespace lumora
