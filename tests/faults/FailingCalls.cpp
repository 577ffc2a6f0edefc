// SPDX-License-Identifier: MIT
// Preloaded into lumora by tests/faults/test_faults.py. Counts the calls that change the file system, or the folder
// that relative paths begin in, and lets a chosen one fail, stop short, or kill the process:
//   LUMORA_FAULT_LOG    a file that receives one line a counted call (its name), for the run that only counts
//   LUMORA_FAULT_AT     the number of the call concerned, from 1
//   LUMORA_FAULT_KIND   "once" (that call alone fails), "onwards" (it and all after it fail, as on a full disk),
//                       "short" (a write takes half of its bytes), "interrupted" (a signal came first), "kill"
//   LUMORA_FAULT_NAMED  set: files cannot be without a name, as on some file systems
// Writes count when they go to a regular file. Calls that open for reading, and those that remove, are let through.
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

namespace
{

enum class Verdict { LetThrough, Fail, Shorten };

std::atomic<long> calls{0};

template <typename Function> Function next(const char *name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

/// A line to the log by the bare system call: the wrapped one would count itself.
void log(const char *name)
{
    static const char *const path = std::getenv("LUMORA_FAULT_LOG");
    if (path == nullptr)
        return;
    static const long descriptor =
        ::syscall(SYS_openat, AT_FDCWD, path, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    char line[64];
    const int length = std::snprintf(line, sizeof line, "%s\n", name);
    ::syscall(SYS_write, descriptor, line, static_cast<std::size_t>(length));
}

Verdict verdict(const char *name, bool isWrite = false)
{
    // A sanitizer's runtime starts before there is an environment to read. Its calls are not the program's.
    if (environ == nullptr)
        return Verdict::LetThrough;
    static const char *const at = std::getenv("LUMORA_FAULT_AT");
    static const long wanted = at != nullptr ? std::atol(at) : 0;
    static const char *const given = std::getenv("LUMORA_FAULT_KIND");
    static const char *const kind = given != nullptr ? given : "once";
    const long number = ++calls;
    log(name);
    if (wanted == 0 || number < wanted || (number > wanted && std::strcmp(kind, "onwards") != 0))
        return Verdict::LetThrough;
    if (std::strcmp(kind, "kill") == 0)
        ::raise(SIGKILL);
    if (std::strcmp(kind, "short") == 0)
        return isWrite ? Verdict::Shorten : Verdict::LetThrough;
    if (std::strcmp(kind, "interrupted") == 0) {
        if (!isWrite)
            return Verdict::LetThrough;
        errno = EINTR;
        return Verdict::Fail;
    }
    errno = isWrite ? ENOSPC : EDQUOT;
    return Verdict::Fail;
}

bool fails(const char *name)
{
    return verdict(name) == Verdict::Fail;
}

bool changes(int flags)
{
    return (flags & O_ACCMODE) != O_RDONLY || (flags & (O_CREAT | O_TRUNC)) != 0;
}

bool isRegular(int descriptor)
{
    struct stat status = {};
    return ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
}

bool lacksUnnamedFiles(int flags)
{
    static const bool lacks = std::getenv("LUMORA_FAULT_NAMED") != nullptr;
    if (!lacks || (flags & O_TMPFILE) != O_TMPFILE)
        return false;
    errno = EOPNOTSUPP;
    return true;
}

mode_t modeOf(int flags, va_list arguments)
{
    return (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
}

} // namespace

// The C library declares these with its own attributes; only their names and arguments must be the same.
extern "C" {

#define WRAP_OPEN(name)                                                                                                \
    int name(const char *path, int flags, ...)                                                                         \
    {                                                                                                                  \
        va_list arguments;                                                                                             \
        va_start(arguments, flags);                                                                                    \
        const mode_t mode = modeOf(flags, arguments);                                                                  \
        va_end(arguments);                                                                                             \
        if (lacksUnnamedFiles(flags) || (changes(flags) && fails(#name)))                                              \
            return -1;                                                                                                 \
        return next<int (*)(const char *, int, mode_t)>(#name)(path, flags, mode);                                     \
    }
WRAP_OPEN(open)
WRAP_OPEN(open64)
#undef WRAP_OPEN

#define WRAP_OPENAT(name)                                                                                              \
    int name(int folder, const char *path, int flags, ...)                                                             \
    {                                                                                                                  \
        va_list arguments;                                                                                             \
        va_start(arguments, flags);                                                                                    \
        const mode_t mode = modeOf(flags, arguments);                                                                  \
        va_end(arguments);                                                                                             \
        if (lacksUnnamedFiles(flags) || (changes(flags) && fails(#name)))                                              \
            return -1;                                                                                                 \
        return next<int (*)(int, const char *, int, mode_t)>(#name)(folder, path, flags, mode);                        \
    }
WRAP_OPENAT(openat)
WRAP_OPENAT(openat64)
#undef WRAP_OPENAT

int creat(const char *path, mode_t mode)
{
    return fails("creat") ? -1 : next<int (*)(const char *, mode_t)>("creat")(path, mode);
}

std::FILE *fopen(const char *path, const char *mode)
{
    if (mode[0] != 'r' && fails("fopen"))
        return nullptr;
    return next<std::FILE *(*)(const char *, const char *)>("fopen")(path, mode);
}

std::FILE *fopen64(const char *path, const char *mode)
{
    if (mode[0] != 'r' && fails("fopen64"))
        return nullptr;
    return next<std::FILE *(*)(const char *, const char *)>("fopen64")(path, mode);
}

ssize_t write(int descriptor, const void *bytes, size_t count)
{
    const auto real = next<ssize_t (*)(int, const void *, size_t)>("write");
    if (!isRegular(descriptor))
        return real(descriptor, bytes, count);
    switch (verdict("write", true)) {
    case Verdict::Fail:
        return -1;
    case Verdict::Shorten:
        return real(descriptor, bytes, count > 1 ? count / 2 : count);
    case Verdict::LetThrough:
        break;
    }
    return real(descriptor, bytes, count);
}

ssize_t pwrite(int descriptor, const void *bytes, size_t count, off_t offset)
{
    if (isRegular(descriptor) && verdict("pwrite", true) == Verdict::Fail)
        return -1;
    return next<ssize_t (*)(int, const void *, size_t, off_t)>("pwrite")(descriptor, bytes, count, offset);
}

ssize_t pwrite64(int descriptor, const void *bytes, size_t count, off64_t offset)
{
    if (isRegular(descriptor) && verdict("pwrite64", true) == Verdict::Fail)
        return -1;
    return next<ssize_t (*)(int, const void *, size_t, off64_t)>("pwrite64")(descriptor, bytes, count, offset);
}

ssize_t writev(int descriptor, const iovec *pieces, int count)
{
    if (isRegular(descriptor) && verdict("writev", true) == Verdict::Fail)
        return -1;
    return next<ssize_t (*)(int, const iovec *, int)>("writev")(descriptor, pieces, count);
}

size_t fwrite(const void *bytes, size_t size, size_t count, std::FILE *stream)
{
    if (isRegular(::fileno(stream)) && verdict("fwrite", true) == Verdict::Fail) {
        stream->_flags |= 0x20; // the flag that ferror() reads
        return 0;
    }
    return next<size_t (*)(const void *, size_t, size_t, std::FILE *)>("fwrite")(bytes, size, count, stream);
}

int mkdir(const char *path, mode_t mode)
{
    return fails("mkdir") ? -1 : next<int (*)(const char *, mode_t)>("mkdir")(path, mode);
}

int mkdirat(int folder, const char *path, mode_t mode)
{
    return fails("mkdirat") ? -1 : next<int (*)(int, const char *, mode_t)>("mkdirat")(folder, path, mode);
}

char *mkdtemp(char *pattern)
{
    return fails("mkdtemp") ? nullptr : next<char *(*)(char *)>("mkdtemp")(pattern);
}

int chdir(const char *path)
{
    return fails("chdir") ? -1 : next<int (*)(const char *)>("chdir")(path);
}

int rename(const char *from, const char *to)
{
    return fails("rename") ? -1 : next<int (*)(const char *, const char *)>("rename")(from, to);
}

int renameat(int fromFolder, const char *from, int toFolder, const char *to)
{
    return fails("renameat")
               ? -1
               : next<int (*)(int, const char *, int, const char *)>("renameat")(fromFolder, from, toFolder, to);
}

int renameat2(int fromFolder, const char *from, int toFolder, const char *to, unsigned flags)
{
    return fails("renameat2") ? -1
                              : next<int (*)(int, const char *, int, const char *, unsigned)>("renameat2")(
                                    fromFolder, from, toFolder, to, flags);
}

int link(const char *from, const char *to)
{
    return fails("link") ? -1 : next<int (*)(const char *, const char *)>("link")(from, to);
}

int linkat(int fromFolder, const char *from, int toFolder, const char *to, int flags)
{
    return fails("linkat") ? -1
                           : next<int (*)(int, const char *, int, const char *, int)>("linkat")(fromFolder, from,
                                                                                                toFolder, to, flags);
}

int symlink(const char *target, const char *path)
{
    return fails("symlink") ? -1 : next<int (*)(const char *, const char *)>("symlink")(target, path);
}

int fsync(int descriptor)
{
    return fails("fsync") ? -1 : next<int (*)(int)>("fsync")(descriptor);
}

int fdatasync(int descriptor)
{
    return fails("fdatasync") ? -1 : next<int (*)(int)>("fdatasync")(descriptor);
}

int ftruncate(int descriptor, off_t length)
{
    return fails("ftruncate") ? -1 : next<int (*)(int, off_t)>("ftruncate")(descriptor, length);
}

int ftruncate64(int descriptor, off64_t length)
{
    return fails("ftruncate64") ? -1 : next<int (*)(int, off64_t)>("ftruncate64")(descriptor, length);
}

int fchmod(int descriptor, mode_t mode)
{
    return fails("fchmod") ? -1 : next<int (*)(int, mode_t)>("fchmod")(descriptor, mode);
}

} // extern "C"
