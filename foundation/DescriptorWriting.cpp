// SPDX-License-Identifier: MIT
#include "DescriptorWriting.h"

#include <cerrno>

#include <unistd.h>

namespace lumora
{

bool writeAll(int descriptor, const QByteArray &bytes)
{
    qsizetype written = 0;
    while (written < bytes.size()) {
        const ssize_t count =
            ::write(descriptor, bytes.constData() + written, static_cast<std::size_t>(bytes.size() - written));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return false;
        written += count;
    }
    return true;
}

} // namespace lumora
