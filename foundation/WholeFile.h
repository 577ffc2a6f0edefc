// SPDX-License-Identifier: MIT
#pragma once

#include "Result.h"

#include <QByteArray>
#include <QString>

namespace lumora
{

/// Writes the bytes as the whole content of the file at `path`. An existing file is replaced only once the new content
/// is complete. When writing fails, nothing of the new content is left, and the failure has the system's reason. A
/// device is written in place, and so is a named pipe that has a reader.
Outcome writeWholeFile(const QString &path, const QByteArray &bytes);

/// The whole content of a regular file of at most `limit` bytes (`TooLarge`). Pipes and devices are refused at once
/// (`NotReadable`), since they might never end or never begin.
Result<QByteArray> readWholeFile(const QString &path, qint64 limit);

/// The whole content of an open file, pipe or device of at most `limit` bytes. The descriptor stays open; a failure's
/// subject is `name`.
Result<QByteArray> readWholeDescriptor(int descriptor, const QString &name, qint64 limit);

} // namespace lumora
