// SPDX-License-Identifier: MIT
#include "ProcessLock.h"

#include "FileDescriptor.h"

#include <QFile>
#include <QFileInfo>

#include <array>
#include <cerrno>
#include <memory>

#include <fcntl.h>
#include <linux/landlock.h>
#include <sched.h>
#include <seccomp.h>
#include <sys/ioctl.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

// Missing in the headers of some systems: truncating files came with the third version of the interface, ioctl on
// devices with the fifth.
constexpr quint64 truncateFile = 1ULL << 14;
constexpr quint64 orderDevice = 1ULL << 15;

constexpr quint64 readFile = LANDLOCK_ACCESS_FS_READ_FILE;
constexpr quint64 readAll = LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_READ_DIR;
constexpr quint64 writeFile = LANDLOCK_ACCESS_FS_WRITE_FILE | truncateFile;
/// To write a new file beside the old one and rename it.
constexpr quint64 replaceFile =
    writeFile | LANDLOCK_ACCESS_FS_MAKE_REG | LANDLOCK_ACCESS_FS_REMOVE_FILE | LANDLOCK_ACCESS_FS_REFER;

/// Files that are loaded late: libraries, picture plug-ins, tables of time zones and character sets.
constexpr std::array systemFolders = {"/usr/lib", "/usr/lib64", "/usr/share", "/lib", "/lib64"};

/// All kinds of access that this version of the kernel's interface can refuse; 0 where there is none.
quint64 refusable()
{
    const long version = ::syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
    if (version < 1)
        return 0;
    quint64 access = LANDLOCK_ACCESS_FS_REFER - 1;
    if (version >= 2)
        access |= LANDLOCK_ACCESS_FS_REFER;
    if (version >= 3)
        access |= truncateFile;
    if (version >= 5)
        access |= orderDevice;
    return access;
}

/// Allows access to the file or folder at the path and to everything in it. A path that does not exist is skipped.
void allow(const FileDescriptor &rules, const QString &path, quint64 access)
{
    const FileDescriptor place(::open(QFile::encodeName(path).constData(), O_PATH | O_CLOEXEC));
    struct stat status = {};
    if (!place.valid() || ::fstat(place.number(), &status) != 0)
        return;
    landlock_path_beneath_attr rule = {};
    rule.parent_fd = place.number();
    // For a file, the kernel refuses a rule with rights over folders.
    rule.allowed_access = S_ISDIR(status.st_mode) ? access : access & (readFile | writeFile);
    ::syscall(SYS_landlock_add_rule, rules.number(), LANDLOCK_RULE_PATH_BENEATH, &rule, 0);
}

bool lockFiles(const LockedPlaces &places)
{
    const quint64 refused = refusable();
    landlock_ruleset_attr attributes = {};
    attributes.handled_access_fs = refused;
    const FileDescriptor rules(
        refused == 0 ? -1
                     : static_cast<int>(::syscall(SYS_landlock_create_ruleset, &attributes, sizeof attributes, 0)));
    if (!rules.valid())
        return false;
    for (const char *folder : systemFolders)
        allow(rules, QString::fromLatin1(folder), readAll);
    for (const QString &path : places.readable)
        allow(rules, path, readAll);
    for (const QString &path : places.written) {
        // A device or pipe is written in place; a file is replaced by a new one in its folder.
        const QFileInfo info(path);
        const QFileInfo file(info.exists() ? info.canonicalFilePath() : path);
        if (info.exists() && !info.isFile())
            allow(rules, path, writeFile & refused);
        else
            allow(rules, file.absolutePath(), replaceFile & refused);
    }
    for (const QString &folder : places.scratch) {
        allow(rules, folder, refused);
        allow(rules, QFileInfo(folder).absolutePath(), LANDLOCK_ACCESS_FS_REMOVE_DIR);
    }
    return ::syscall(SYS_landlock_restrict_self, rules.number(), 0) == 0;
}

struct ReleaseFilter
{
    void operator()(void *filter) const { ::seccomp_release(filter); }
};

/// Calls by which a process reaches the network, other programs or the inside of the kernel.
constexpr std::array refusedCalls = {
    SCMP_SYS(socket),
    SCMP_SYS(socketpair),
    SCMP_SYS(connect),
    SCMP_SYS(bind),
    SCMP_SYS(listen),
    SCMP_SYS(accept),
    SCMP_SYS(accept4),
    SCMP_SYS(execve),
    SCMP_SYS(execveat),
    SCMP_SYS(fork),
    SCMP_SYS(vfork),
    SCMP_SYS(ptrace),
    SCMP_SYS(kill),
    SCMP_SYS(tkill),
    SCMP_SYS(pidfd_open),
    SCMP_SYS(pidfd_getfd),
    SCMP_SYS(pidfd_send_signal),
    SCMP_SYS(process_vm_readv),
    SCMP_SYS(process_vm_writev),
    SCMP_SYS(process_madvise),
    SCMP_SYS(bpf),
    SCMP_SYS(perf_event_open),
    SCMP_SYS(userfaultfd),
    SCMP_SYS(io_uring_setup),
    SCMP_SYS(keyctl),
    SCMP_SYS(add_key),
    SCMP_SYS(request_key),
    SCMP_SYS(mount),
    SCMP_SYS(umount2),
    SCMP_SYS(unshare),
    SCMP_SYS(setns),
    SCMP_SYS(pivot_root),
    SCMP_SYS(chroot),
    SCMP_SYS(open_by_handle_at),
    SCMP_SYS(init_module),
    SCMP_SYS(finit_module),
    SCMP_SYS(kexec_load),
    SCMP_SYS(msgget),
    SCMP_SYS(shmget),
    SCMP_SYS(mq_open),
};

bool lockCalls()
{
    const std::unique_ptr<void, ReleaseFilter> filter(::seccomp_init(SCMP_ACT_ALLOW));
    if (!filter)
        return false;
    bool complete = ::seccomp_attr_set(filter.get(), SCMP_FLTATR_CTL_TSYNC, 1) == 0;
    for (const int call : refusedCalls) {
        // A call that this machine does not have needs no rule.
        const int added = ::seccomp_rule_add(filter.get(), SCMP_ACT_ERRNO(EPERM), call, 0);
        complete = complete && (added == 0 || added == -EDOM);
    }
    // A thread shares its memory; a clone that does not is a process.
    const scmp_arg_cmp aProcess = SCMP_A0(SCMP_CMP_MASKED_EQ, CLONE_VM, 0);
    complete = complete && ::seccomp_rule_add(filter.get(), SCMP_ACT_ERRNO(EPERM), SCMP_SYS(clone), 1, aProcess) == 0;
    // clone3 has its arguments in memory, where no filter sees them. When it is missing, the C library uses clone.
    complete = complete && ::seccomp_rule_add(filter.get(), SCMP_ACT_ERRNO(ENOSYS), SCMP_SYS(clone3), 0) == 0;
    // TIOCSTI types into the user's terminal.
    const scmp_arg_cmp typing = SCMP_A1(SCMP_CMP_MASKED_EQ, 0xFFFFFFFF, TIOCSTI);
    complete = complete && ::seccomp_rule_add(filter.get(), SCMP_ACT_ERRNO(EPERM), SCMP_SYS(ioctl), 1, typing) == 0;
    return complete && ::seccomp_load(filter.get()) == 0;
}

} // namespace

ProcessLock lockProcess(const LockedPlaces &places)
{
    // Landlock and seccomp both require this: no program that is started may gain rights that this one does not have.
    if (::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0)
        return {};
    ProcessLock lock;
    lock.files = lockFiles(places);
    lock.calls = lockCalls();
    return lock;
}

} // namespace lumora
