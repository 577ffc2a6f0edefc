// SPDX-License-Identifier: MIT
#include "CommandText.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace lumora
{

QString commandText(const char *key, std::initializer_list<TextValue> values)
{
    const QString text = qtTrId(key);
    QString filled;
    qsizetype from = 0;
    while (from < text.size()) {
        qsizetype next = text.size();
        const TextValue *found = nullptr;
        for (const TextValue &value : values) {
            const qsizetype at = text.indexOf(QLatin1StringView(value.first), from);
            if (at >= 0 && at < next) {
                next = at;
                found = &value;
            }
        }
        filled += QStringView(text).sliced(from, next - from);
        if (found == nullptr)
            break;
        filled += found->second;
        from = next + QLatin1StringView(found->first).size();
    }
    return filled;
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
