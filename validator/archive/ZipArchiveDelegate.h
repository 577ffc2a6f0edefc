// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1StringView>
#include <QString>

namespace lumora
{

/// Who a `ZipArchive` tells about errors and asks about files in the way. An informal protocol: both operations are
/// optional, and which ones there are is asked by selector before they are sent.
class ZipArchiveDelegate
{
public:
    virtual ~ZipArchiveDelegate() = default;

    /// True when the delegate has the operation. The operations below have the selectors "ErrorMessage:" and
    /// "OverWriteOperation:", with the colon of their one argument, and a delegate has those by nature.
    virtual bool respondsToSelector(QLatin1StringView selector) const;

    virtual void ErrorMessage(const QString &message);
    /// True when the existing file at the path may be replaced.
    virtual bool OverWriteOperation(const QString &path);
};

} // namespace lumora
