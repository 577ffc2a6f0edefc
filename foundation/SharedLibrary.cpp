// SPDX-License-Identifier: MIT
#include "SharedLibrary.h"

#include <cstdio>

#include <dlfcn.h>
#include <unistd.h>

namespace lumora
{

namespace
{

constexpr int missingLibrary = 127;

} // namespace

SharedLibrary::SharedLibrary(const char *name) : m_name(name), m_handle(::dlopen(name, RTLD_NOW | RTLD_LOCAL)) {}

SharedLibrary::Function SharedLibrary::operator[](const char *name) const
{
    void *address = m_handle == nullptr ? nullptr : ::dlsym(m_handle, name);
    if (address == nullptr) {
        std::fprintf(stderr, "lumora: %s is not installed, or it has no function %s\n", m_name, name);
        ::_exit(missingLibrary);
    }
    return Function(address);
}

} // namespace lumora
