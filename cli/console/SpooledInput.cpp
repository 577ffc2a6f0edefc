// SPDX-License-Identifier: MIT
#include "SpooledInput.h"

#include "foundation/FileDescriptor.h"

#include <QFile>

#include <cerrno>
#include <span>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

namespace lumora
{

Outcome spoolDescriptor(int descriptor, const QString &name, const QString &path, qint64 limit)
{
    const FileDescriptor file(
        ::open(QFile::encodeName(path).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (!file.valid())
        return systemFailure(FailureCode::CannotWrite, path);
    constexpr std::size_t step = 1 << 18;
    std::vector<char> bytes(step);
    qint64 total = 0;
    for (;;) {
        const ssize_t count = ::read(descriptor, bytes.data(), step);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return systemFailure(FailureCode::NotReadable, name);
        if (count == 0)
            return Done{};
        total += count;
        if (total > limit)
            return Failure{FailureCode::TooLarge, name, {}};
        const Outcome written = writeAll(file, std::span(bytes).first(static_cast<std::size_t>(count)));
        if (!written)
            return Failure{written.failure().code, path, written.failure().detail};
    }
}

} // namespace lumora
