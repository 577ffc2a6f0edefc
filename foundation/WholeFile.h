// SPDX-License-Identifier: MIT
#pragma once

#include "Result.h"

#include <QByteArray>
#include <QString>

namespace lumora
{

/// Writes the bytes as the whole content of the file at `path`. A file that stands there is replaced only once the new
/// content is whole; when it cannot be written nothing is left of it, and the failure names the system's reason. A
/// device is written in place, and so is a named pipe if somebody reads from it.
Outcome writeWholeFile(const QString &path, const QByteArray &bytes);

/// The whole content of a regular file, a pipe or a device, as long as it is no longer than `limit` bytes (`TooLarge`).
Result<QByteArray> readWholeFile(const QString &path, qint64 limit);

/// The same from an open file descriptor, which stays open; `name` stands in for it in a failure.
Result<QByteArray> readWholeDescriptor(int descriptor, const QString &name, qint64 limit);

} // namespace lumora
