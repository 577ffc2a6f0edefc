// SPDX-License-Identifier: MIT
#include "FilledText.h"

namespace lumora
{

QString filledText(const QString &text, std::span<const TextValue> values)
{
    QString filled;
    qsizetype from = 0;
    while (from < text.size()) {
        qsizetype next = text.size();
        const TextValue *found = nullptr;
        for (const TextValue &value : values) {
            const qsizetype at = text.indexOf(value.name, from);
            if (at >= 0 && at < next) {
                next = at;
                found = &value;
            }
        }
        filled += QStringView(text).sliced(from, next - from);
        if (found == nullptr)
            break;
        filled += found->replacement;
        from = next + found->name.size();
    }
    return filled;
}

} // namespace lumora
