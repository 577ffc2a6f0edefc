// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1StringView>
#include <QString>

namespace lumora
{

/// Receives the errors of a `ZipArchive` and its questions about existing files. An informal protocol: both operations
/// are optional, and the archive asks by selector whether an operation exists before sending it.
class ZipArchiveDelegate
{
public:
    virtual ~ZipArchiveDelegate() = default;

    /// True when the delegate has the operation. The operations below have the selectors "ErrorMessage:" and
    /// "OverWriteOperation:", with the colon of their one argument; every delegate has these by default.
    virtual bool respondsToSelector(QLatin1StringView selector) const;

    virtual void ErrorMessage(const QString &message);
    /// True when the existing file at the path may be replaced.
    virtual bool OverWriteOperation(const QString &path);
};

} // namespace lumora
