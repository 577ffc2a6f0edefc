// SPDX-License-Identifier: MIT
#pragma once

#include "validator/archive/ZipArchiveDelegate.h"

#include <QStringList>

namespace lumora
{

/// A delegate with both forms of the selectors, so that it is heard. Remembers what it receives and is asked.
class ListeningDelegate : public ZipArchiveDelegate
{
public:
    bool respondsToSelector(QLatin1StringView) const override { return true; }
    void ErrorMessage(const QString &message) override { messages += message; }
    bool OverWriteOperation(const QString &path) override
    {
        asked += path;
        return replace;
    }

    QStringList messages;
    QStringList asked;
    bool replace = true;
};

/// One that implements the two operations and nothing else, as any delegate would.
class ColonOnlyDelegate final : public ListeningDelegate
{
public:
    bool respondsToSelector(QLatin1StringView selector) const override
    {
        return ZipArchiveDelegate::respondsToSelector(selector);
    }
};

} // namespace lumora
