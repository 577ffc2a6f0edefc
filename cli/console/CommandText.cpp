// SPDX-License-Identifier: MIT
#include "CommandText.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace lumora
{

QString commandText(const char *key, std::initializer_list<TextValue> values)
{
    return filledText(qtTrId(key), std::span(values.begin(), values.size()));
}

QString alternatives(const QStringList &words)
{
    if (words.size() < 2)
        return words.join(QString());
    return words.first(words.size() - 1).join(u", "_s) + u' ' + commandText("CLI_OR") + u' ' + words.last();
}

QString quoted(const QString &word)
{
    return u'"' + word + u'"';
}

} // namespace lumora
