// SPDX-License-Identifier: MIT
#include "StoppableRead.h"

namespace lumora
{

std::optional<Result<QByteArray>> readUnlessStopped(const ReadSource &read, const QString &path,
                                                    const std::stop_token &stop)
{
    if (!stop.stop_possible())
        return read(path);
    return unlessStopped<Result<QByteArray>>([read, path] { return read(path); }, stop);
}

} // namespace lumora
