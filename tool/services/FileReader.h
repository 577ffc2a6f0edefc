// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"

#include <QByteArray>
#include <QString>

namespace lumora
{

/// Reads whole files for the panes. Callable on any thread, on several at once.
class FileReader
{
public:
    virtual ~FileReader() = default;

    /// Whether a read can block for a long time, for instance because a network share does not answer.
    virtual bool mayStall() const = 0;
    /// The content of a regular file of at most `limit` bytes; fails as `readWholeFile` does.
    virtual Result<QByteArray> read(const QString &path, qint64 limit) const = 0;
};

/// Reads from the file system, which includes network shares.
class DiskReader final : public FileReader
{
public:
    bool mayStall() const override { return true; }
    Result<QByteArray> read(const QString &path, qint64 limit) const override;
};

} // namespace lumora
