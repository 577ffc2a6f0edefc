// SPDX-License-Identifier: MIT
#include "ReaderPipe.h"

#include "validator/crypto/Digest.h"

#include <algorithm>
#include <cerrno>

#include <signal.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace lumora
{

namespace
{

/// More than any package needs; past it the reader ends, and not the user's desktop.
[[maybe_unused]] constexpr rlim_t mostMemory = rlim_t{4} << 30;
/// Progress is told in steps of this size, per mille.
constexpr int progressStep = 10;

void limitMemory()
{
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
    // A sanitizer's shadow memory needs more.
    const rlimit memory{mostMemory, mostMemory};
    ::setrlimit(RLIMIT_AS, &memory);
#endif
    const rlimit noDump{0, 0};
    ::setrlimit(RLIMIT_CORE, &noDump);
}

QByteArray line(QLatin1StringView word, qsizetype number)
{
    return QByteArray(word.data(), word.size()) + QByteArray::number(number) + '\n';
}

} // namespace

void ReaderPipe::tellProgress(int perMille)
{
    const std::lock_guard lock(m_mutex);
    if (perMille < m_told + progressStep)
        return;
    m_told = perMille;
    put(line(progressWord, perMille));
}

bool ReaderPipe::send(QLatin1StringView word, const QByteArray &content)
{
    const std::lock_guard lock(m_mutex);
    return put(line(word, content.size()) + content);
}

bool ReaderPipe::sendFailure(FailureCode code)
{
    const std::lock_guard lock(m_mutex);
    return put(line(failureWord, static_cast<qsizetype>(code)));
}

bool ReaderPipe::put(const QByteArray &bytes)
{
    qsizetype done = 0;
    while (done < bytes.size()) {
        const ssize_t written =
            ::write(m_descriptor, bytes.constData() + done, static_cast<std::size_t>(bytes.size() - done));
        if (written < 0 && errno != EINTR)
            return false;
        done += std::max<ssize_t>(written, 0);
    }
    return true;
}

void becomeReader(const LockedPlaces &places)
{
    ::prctl(PR_SET_PDEATHSIG, SIGKILL, 0, 0, 0);
    loadCryptoLibrary();
    limitMemory();
    lockProcess(places);
}

} // namespace lumora
