// SPDX-License-Identifier: MIT
#pragma once

#include "validator/archive/ZipArchiveDelegate.h"

#include <QStringList>

namespace lumora
{

/// A delegate with both forms of the selectors, so that it is called. Records the messages and questions.
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

/// A delegate that implements the two operations and nothing else, like any other.
class ColonOnlyDelegate final : public ListeningDelegate
{
public:
    bool respondsToSelector(QLatin1StringView selector) const override
    {
        return ZipArchiveDelegate::respondsToSelector(selector);
    }
};

} // namespace lumora
