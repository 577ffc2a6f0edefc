// SPDX-License-Identifier: MIT
#pragma once

#include "FilledText.h"

#include <QLatin1StringView>
#include <QList>
#include <QString>

namespace lumora
{

/// More on a failure: either free text, as the system and the decoders word it, or the key of a text with its values.
/// An engine names the key; the text in the user's language is looked up where a message is made.
class FailureDetail
{
public:
    using Values = QList<TextValue>;

    FailureDetail() = default;
    FailureDetail(QString text) : m_text(std::move(text)) {}
    /// `key` is a literal.
    FailureDetail(const char *key, Values values = {}) : m_key(key), m_values(std::move(values)) {}

    bool isEmpty() const { return m_key.isEmpty() && m_text.isEmpty(); }
    /// Empty for free text.
    QLatin1StringView key() const { return m_key; }
    /// In the language of the installed texts; a program without texts gets the key and the values.
    QString words() const;

    bool operator==(const FailureDetail &) const = default;

private:
    QString m_text;
    QLatin1StringView m_key;
    Values m_values;
};

} // namespace lumora
