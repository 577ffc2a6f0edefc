// SPDX-License-Identifier: MIT
// Preloaded into the program, this runs in the middle of the unpacking, as a hostile archive would: at the first
// unpacked entry it tries the action in LUMORA_PLANTED_FAULT at the path in LUMORA_PLANTED_PLACE, and reports the
// result.
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <mutex>

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <libdeflate.h>
#include <netinet/in.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

/// 0 when the action succeeded, else the reason.
int reason(bool done)
{
    return done ? 0 : errno;
}

int connectTo(const char *place)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, place, sizeof address.sun_path - 1);
    const int descriptor = ::socket(AF_UNIX, SOCK_STREAM, 0);
    if (descriptor < 0)
        return errno;
    return reason(::connect(descriptor, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0);
}

int forked()
{
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(0);
    return reason(child > 0 && ::waitpid(child, nullptr, 0) == child);
}

int spawned()
{
    char name[] = "true";
    char *arguments[] = {name, nullptr};
    char *environment[] = {nullptr};
    pid_t child = 0;
    const int error = ::posix_spawn(&child, "/bin/true", nullptr, nullptr, arguments, environment);
    if (error == 0)
        ::waitpid(child, nullptr, 0);
    return error;
}

int attempt(const char *fault, const char *place)
{
    const auto is = [fault](const char *name) { return std::strcmp(fault, name) == 0; };
    if (is("read"))
        return reason(::open(place, O_RDONLY | O_CLOEXEC) >= 0);
    if (is("list"))
        return reason(::opendir(place) != nullptr);
    if (is("create"))
        return reason(::open(place, O_WRONLY | O_CREAT | O_CLOEXEC, 0600) >= 0);
    if (is("empty"))
        return reason(::truncate(place, 0) == 0);
    if (is("remove"))
        return reason(::unlink(place) == 0);
    if (is("connect"))
        return connectTo(place);
    if (is("internet"))
        return reason(::socket(AF_INET, SOCK_STREAM, 0) >= 0);
    if (is("fork"))
        return forked();
    if (is("start"))
        return spawned();
    if (is("signal"))
        return reason(::kill(::getppid(), 0) == 0);
    if (is("hold"))
        return reason(::syscall(SYS_pidfd_open, ::getppid(), 0) >= 0);
    return ENOSYS;
}

void plant()
{
    const char *fault = std::getenv("LUMORA_PLANTED_FAULT");
    const char *place = std::getenv("LUMORA_PLANTED_PLACE");
    if (fault == nullptr || place == nullptr)
        return;
    const int error = attempt(fault, place);
    std::fprintf(stderr, "planted %s: %s\n", fault, error == 0 ? "done" : "refused");
}

} // namespace

extern "C" int unzReadCurrentFile(void *archive, void *buffer, unsigned size)
{
    using Function = int (*)(void *, void *, unsigned);
    static const auto real = reinterpret_cast<Function>(::dlsym(RTLD_NEXT, "unzReadCurrentFile"));
    static std::once_flag planted;
    std::call_once(planted, plant);
    return real(archive, buffer, size);
}

extern "C" libdeflate_result libdeflate_deflate_decompress(libdeflate_decompressor *decompressor, const void *in,
                                                           std::size_t inSize, void *out, std::size_t outSize,
                                                           std::size_t *written)
{
    using Function =
        libdeflate_result (*)(libdeflate_decompressor *, const void *, std::size_t, void *, std::size_t, std::size_t *);
    static const auto real = reinterpret_cast<Function>(::dlsym(RTLD_NEXT, "libdeflate_deflate_decompress"));
    static std::once_flag planted;
    std::call_once(planted, plant);
    return real(decompressor, in, inSize, out, outSize, written);
}
