// SPDX-License-Identifier: MIT
#include "ReviewAnswer.h"

#include "ReviewJson.h"
#include "foundation/MemoryLimit.h"
#include "foundation/ProcessLock.h"
#include "validator/crypto/Digest.h"

#include <algorithm>
#include <cerrno>
#include <mutex>

#include <sys/resource.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

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

bool put(int descriptor, const QByteArray &bytes)
{
    qsizetype done = 0;
    while (done < bytes.size()) {
        const ssize_t written =
            ::write(descriptor, bytes.constData() + done, static_cast<std::size_t>(bytes.size() - done));
        if (written < 0 && errno != EINTR)
            return false;
        done += std::max<ssize_t>(written, 0);
    }
    return true;
}

QByteArray line(QLatin1StringView word, qsizetype number)
{
    return QByteArray(word.data(), word.size()) + QByteArray::number(number) + '\n';
}

/// Writes progress in order, from any thread.
class ProgressLines
{
public:
    explicit ProgressLines(int descriptor) : m_descriptor(descriptor) {}

    void tell(int perMille)
    {
        const std::lock_guard lock(m_mutex);
        if (perMille < m_told + progressStep)
            return;
        m_told = perMille;
        put(m_descriptor, line(progressWord, perMille));
    }

private:
    std::mutex m_mutex;
    int m_descriptor;
    int m_told = 0;
};

} // namespace

int answerReview(const QString &path, const RuleSettings &settings, int descriptor)
{
    loadCryptoLibrary();
    limitMemory();
    lockProcess({{path}, {}, {}});
    ProgressLines progress(descriptor);
    const Result<PackageReview> review = withinMemory(
        path, [&] { return reviewPackage(path, settings, [&progress](int perMille) { progress.tell(perMille); }); });
    if (!review)
        return put(descriptor, line(failureWord, static_cast<qsizetype>(review.failure().code))) ? 0 : 1;
    const QByteArray bytes = bytesOf(review.value());
    return put(descriptor, line(reviewWord, bytes.size()) + bytes) ? 0 : 1;
}

} // namespace lumora
