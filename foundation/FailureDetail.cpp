// SPDX-License-Identifier: MIT
#include "FailureDetail.h"

#include <QCoreApplication>

namespace lumora
{

QString FailureDetail::words() const
{
    if (m_key.isEmpty())
        return m_text;
    QString text = qtTrId(m_key.data());
    if (text == m_key) {
        for (const TextValue &value : m_values)
            text += u' ' + value.replacement;
        return text;
    }
    return filledText(text, m_values);
}

} // namespace lumora
