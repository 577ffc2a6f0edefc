// SPDX-License-Identifier: MIT
#include "OpenStepList.h"

#include <QString>

namespace lumora
{

namespace
{

constexpr int deepestNesting = 64;

class Reader
{
public:
    explicit Reader(const QByteArray &text) : m_text(text) {}

    std::optional<QVariant> read()
    {
        QVariant value = readValue(0);
        skipBlanks();
        return m_broken || m_at < m_text.size() ? std::nullopt : std::optional(value);
    }

private:
    char next() const { return m_at < m_text.size() ? m_text[m_at] : '\0'; }

    bool take(char wanted)
    {
        skipBlanks();
        if (next() != wanted)
            return false;
        ++m_at;
        return true;
    }

    void skipBlanks()
    {
        for (;;) {
            while (m_at < m_text.size() && static_cast<uchar>(m_text[m_at]) <= ' ')
                ++m_at;
            const QByteArrayView rest = QByteArrayView(m_text).sliced(m_at);
            qsizetype end = 0;
            if (rest.startsWith("//"))
                end = rest.indexOf('\n');
            else if (rest.startsWith("/*"))
                end = rest.indexOf("*/") < 0 ? -1 : rest.indexOf("*/") + 2;
            else
                return;
            m_at = end < 0 ? m_text.size() : m_at + end;
        }
    }

    QVariant broken()
    {
        m_broken = true;
        m_at = m_text.size();
        return {};
    }

    QVariant readValue(int depth)
    {
        if (depth > deepestNesting)
            return broken();
        if (take('{'))
            return readDictionary(depth);
        if (take('('))
            return readArray(depth);
        return readString();
    }

    QVariant readDictionary(int depth)
    {
        QVariantMap dictionary;
        while (!m_broken && !take('}')) {
            const QString key = readString().toString();
            if (m_broken || !take('='))
                return broken();
            dictionary.insert(key, readValue(depth + 1));
            if (!take(';'))
                return broken();
        }
        return dictionary;
    }

    QVariant readArray(int depth)
    {
        QVariantList list;
        while (!m_broken && !take(')')) {
            list << readValue(depth + 1);
            if (!take(',') && (skipBlanks(), next() != ')'))
                return broken();
        }
        return list;
    }

    QVariant readString()
    {
        skipBlanks();
        const char quote = next();
        if (quote == '"' || quote == '\'')
            return readQuoted(quote);
        const qsizetype start = m_at;
        while (m_at < m_text.size() && static_cast<uchar>(next()) > ' ' &&
               !QByteArrayView("{}()=;,\"").contains(next()))
            ++m_at;
        if (m_at == start)
            return broken();
        return QString::fromUtf8(m_text.sliced(start, m_at - start));
    }

    QVariant readQuoted(char quote)
    {
        QByteArray string;
        for (++m_at; next() != quote; ++m_at) {
            if (m_at >= m_text.size())
                return broken();
            if (next() == '\\')
                ++m_at;
            string.append(next());
        }
        ++m_at;
        return QString::fromUtf8(string);
    }

    QByteArray m_text;
    qsizetype m_at = 0;
    bool m_broken = false;
};

} // namespace

std::optional<QVariant> readOpenStepList(const QByteArray &text)
{
    return Reader(text).read();
}

} // namespace lumora
