// SPDX-License-Identifier: MIT
#include "StringsTable.h"

#include "PropertyList.h"

#include <QStringDecoder>

#include <array>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// More than any table has.
constexpr qsizetype mostTexts = 20'000;

bool isPropertyList(const QByteArray &bytes)
{
    const QByteArray start = bytes.first(qMin<qsizetype>(bytes.size(), 1024));
    return start.startsWith("bplist") || start.contains("<plist") || start.contains("<!DOCTYPE plist");
}

/// Without a byte order mark the first key shows the encoding: it begins with an ASCII character.
QStringConverter::Encoding encodingOf(const QByteArray &bytes)
{
    if (const auto marked = QStringConverter::encodingForData(bytes))
        return *marked;
    if (bytes.size() >= 2 && bytes[0] == '\0')
        return QStringConverter::Utf16BE;
    if (bytes.size() >= 2 && bytes[1] == '\0')
        return QStringConverter::Utf16LE;
    return QStringConverter::Utf8;
}

std::optional<QString> decoded(const QByteArray &bytes)
{
    QStringDecoder decoder(encodingOf(bytes));
    QString text = decoder(bytes);
    return decoder.hasError() ? std::nullopt : std::optional(text);
}

/// Reads the pairs one after the other.
class PairReader
{
public:
    explicit PairReader(QStringView text) : m_text(text) {}

    std::optional<StringsTable> pairs()
    {
        StringsTable table;
        // The pairs may be in braces.
        const bool inBraces = skips(u'{');
        while (const auto key = word()) {
            // A key alone is its own text.
            const auto text = skips(u'=') ? word() : key;
            const bool isEnded = skips(u';');
            if (!text || !isEnded || table.size() >= mostTexts)
                return std::nullopt;
            table.insert(*key, *text);
        }
        if (inBraces && !skips(u'}'))
            return std::nullopt;
        skipSpace();
        return m_at == m_text.size() ? std::optional(table) : std::nullopt;
    }

private:
    bool isAt(QStringView mark) const { return m_text.sliced(m_at).startsWith(mark); }

    void skipTo(QStringView end)
    {
        const qsizetype found = m_text.indexOf(end, m_at + 2);
        m_at = found < 0 ? m_text.size() : found + end.size();
    }

    /// Over space and comments.
    void skipSpace()
    {
        while (m_at < m_text.size()) {
            if (m_text[m_at].isSpace())
                ++m_at;
            else if (isAt(u"/*"))
                skipTo(u"*/");
            else if (isAt(u"//"))
                skipTo(u"\n");
            else
                return;
        }
    }

    bool skips(QChar mark)
    {
        skipSpace();
        const bool isThere = m_at < m_text.size() && m_text[m_at] == mark;
        m_at += isThere ? 1 : 0;
        return isThere;
    }

    /// A quoted text, or a plain word.
    std::optional<QString> word()
    {
        skipSpace();
        if (m_at < m_text.size() && (m_text[m_at] == u'"' || m_text[m_at] == u'\''))
            return quoted(m_text[m_at++]);
        const qsizetype start = m_at;
        while (m_at < m_text.size() && (m_text[m_at].isLetterOrNumber() || u"_$:./-"_s.contains(m_text[m_at])))
            ++m_at;
        return m_at == start ? std::nullopt : std::optional(m_text.sliced(start, m_at - start).toString());
    }

    std::optional<QString> quoted(QChar mark)
    {
        QString text;
        while (m_at < m_text.size()) {
            const QChar next = m_text[m_at++];
            if (next == mark)
                return text;
            text += next == u'\\' && m_at < m_text.size() ? escaped() : next;
        }
        return std::nullopt;
    }

    QChar escaped()
    {
        constexpr std::array<std::pair<char16_t, char16_t>, 4> controls{
            {{u'n', u'\n'}, {u't', u'\t'}, {u'r', u'\r'}, {u'a', u'\a'}}};
        constexpr qsizetype digits = 4;
        const QChar next = m_text[m_at++];
        for (const auto &[letter, control] : controls) {
            if (next == letter)
                return control;
        }
        bool isNumber = false;
        if (next == u'U' || next == u'u') {
            const ushort unit = m_text.mid(m_at, digits).toUShort(&isNumber, 16);
            m_at += isNumber ? qMin(digits, m_text.size() - m_at) : 0;
            return isNumber ? QChar(unit) : next;
        }
        return next;
    }

    QStringView m_text;
    qsizetype m_at = 0;
};

} // namespace

std::optional<StringsTable> readStringsTable(const QByteArray &bytes)
{
    if (bytes.size() > largestStringsTable)
        return std::nullopt;
    if (isPropertyList(bytes)) {
        const auto list = propertyListDictionary(bytes);
        if (!list)
            return std::nullopt;
        StringsTable table;
        for (auto each = list->cbegin(); each != list->cend(); ++each) {
            if (each->typeId() == QMetaType::QString)
                table.insert(each.key(), each->toString());
        }
        return table;
    }
    const auto text = decoded(bytes);
    return text ? PairReader(*text).pairs() : std::nullopt;
}

} // namespace lumora
