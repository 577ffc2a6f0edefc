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

[[noreturn]] void endWithoutLibrary()
{
    std::fprintf(stderr, "lumora: %s\n", ::dlerror());
    ::_exit(missingLibrary);
}

} // namespace

SharedLibrary::SharedLibrary(const char *name) : m_handle(::dlopen(name, RTLD_NOW | RTLD_LOCAL))
{
    if (m_handle == nullptr)
        endWithoutLibrary();
}

SharedLibrary::Function SharedLibrary::operator[](const char *name) const
{
    void *address = ::dlsym(m_handle, name);
    if (address == nullptr)
        endWithoutLibrary();
    return Function(address);
}

} // namespace lumora
