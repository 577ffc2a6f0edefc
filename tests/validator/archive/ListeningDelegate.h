// SPDX-License-Identifier: MIT
#pragma once

#include "validator/archive/ZipArchiveDelegate.h"

#include <QStringList>

namespace lumora
{

/// A delegate that implements the two operations and nothing else, like any other. Records the messages and questions.
class ColonOnlyDelegate : public ZipArchiveDelegate
{
public:
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

/// A delegate with both forms of the selectors, so that it is called.
class ListeningDelegate final : public ColonOnlyDelegate
{
public:
    bool respondsToSelector(QLatin1StringView) const override { return true; }
};

} // namespace lumora
