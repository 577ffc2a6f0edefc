// SPDX-License-Identifier: MIT
#include "SealXml.h"

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int deepest = 16;
/// A longer text, tag or comment is in no seal. The reader of XML holds an unfinished one whole.
constexpr qsizetype longestToken = 1 << 20;

bool isContainer(QStringView name)
{
    return name == u"dict" || name == u"array";
}

QByteArray dataIn(const QString &text)
{
    return QByteArray::fromBase64(text.toLatin1());
}

} // namespace

std::optional<SealEnd> SealXml::take(QByteArrayView bytes)
{
    m_xml.addData(bytes.toByteArray());
    m_sinceToken += bytes.size();
    while (true) {
        const QXmlStreamReader::TokenType token = m_xml.readNext();
        if (token == QXmlStreamReader::Invalid) {
            const bool isUnfinished = m_xml.error() == QXmlStreamReader::PrematureEndOfDocumentError;
            return isUnfinished && m_sinceToken <= longestToken ? std::nullopt : std::optional(SealEnd::NoSeal);
        }
        m_sinceToken = 0;
        if (const auto ended = handle(token))
            return ended;
    }
}

std::optional<SealEnd> SealXml::handle(QXmlStreamReader::TokenType token)
{
    switch (token) {
    case QXmlStreamReader::StartElement:
        return begin(m_xml.name());
    case QXmlStreamReader::EndElement:
        return end(m_xml.name());
    case QXmlStreamReader::Characters:
        if (m_readsText)
            m_text += m_xml.text();
        return m_text.size() <= longestToken ? std::nullopt : std::optional(SealEnd::NoSeal);
    case QXmlStreamReader::DTD:
        // A few entities can describe gigabytes of text.
        return m_xml.entityDeclarations().isEmpty() ? std::nullopt : std::optional(SealEnd::NoSeal);
    case QXmlStreamReader::EntityReference:
    case QXmlStreamReader::EndDocument:
        return SealEnd::NoSeal;
    default:
        return std::nullopt;
    }
}

std::optional<SealEnd> SealXml::begin(QStringView name)
{
    if (++m_depth > deepest || m_readsText)
        return SealEnd::NoSeal;
    if (isContainer(name)) {
        open(name);
    } else if (name != u"plist") {
        m_text.clear();
        m_readsText = true;
    }
    return std::nullopt;
}

void SealXml::open(QStringView name)
{
    Level level = Level::Other;
    if (m_levels.isEmpty() && name == u"dict") {
        level = Level::Top;
    } else if (!m_levels.isEmpty() && m_levels.constLast() == Level::Top) {
        const bool isFiles = m_topKey == "files"_L1 || m_topKey == "files2"_L1;
        const bool isRules = m_topKey == "rules"_L1 || m_topKey == "rules2"_L1;
        m_list = m_topKey.endsWith(u'2') ? SealList::New : SealList::Old;
        if (isFiles) {
            level = Level::Files;
            m_taker.takeList(m_list);
        } else if (isRules) {
            level = Level::Rules;
        }
    } else if (!m_levels.isEmpty() && (m_levels.constLast() == Level::Files || m_levels.constLast() == Level::Rules)) {
        level = Level::Row;
        m_file = {};
        m_rule = {};
    }
    m_levels += level;
}

std::optional<SealEnd> SealXml::end(QStringView name)
{
    --m_depth;
    if (name == u"plist")
        return SealEnd::NoSeal;
    if (isContainer(name))
        return close();
    m_readsText = false;
    return value(name);
}

std::optional<SealEnd> SealXml::close()
{
    const Level level = m_levels.takeLast();
    if (level == Level::Top)
        return SealEnd::Whole;
    if (level == Level::Row)
        return row();
    return m_levels.isEmpty() ? std::optional(SealEnd::NoSeal) : std::nullopt;
}

std::optional<SealEnd> SealXml::value(QStringView kind)
{
    if (m_levels.isEmpty())
        return SealEnd::NoSeal;
    const Level level = m_levels.constLast();
    if (kind == u"key") {
        if (level == Level::Top)
            m_topKey = m_text;
        else if (level == Level::Row)
            m_fieldKey = m_text;
        else if (level != Level::Other)
            m_rowKey = m_text;
        return std::nullopt;
    }
    if (level == Level::Row) {
        field(kind);
    } else if (level == Level::Files || level == Level::Rules) {
        // Old seals have only the hash of a file. A rule with the value false excludes files.
        m_file = {};
        m_rule = {};
        if (kind == u"data")
            m_file.sha1 = dataIn(m_text);
        m_rule.omit = kind == u"false";
        return row();
    }
    return std::nullopt;
}

void SealXml::field(QStringView kind)
{
    if (kind == u"data") {
        if (m_fieldKey == "hash"_L1)
            m_file.sha1 = dataIn(m_text);
        else if (m_fieldKey == "hash2"_L1)
            m_file.sha256 = dataIn(m_text);
        else if (m_fieldKey == "cdhash"_L1)
            m_file.codeHash = dataIn(m_text);
    } else if (kind == u"string") {
        if (m_fieldKey == "symlink"_L1)
            m_file.linkTarget = m_text;
    } else if (m_fieldKey == "optional"_L1) {
        m_file.optional = kind == u"true";
    } else if (m_fieldKey == "omit"_L1) {
        m_rule.omit = kind == u"true";
    } else if (m_fieldKey == "weight"_L1) {
        m_rule.weight = m_text.toDouble();
    }
}

std::optional<SealEnd> SealXml::row()
{
    if (++m_rows > m_mostRows)
        return SealEnd::TooLarge;
    if (m_levels.constLast() == Level::Files)
        return m_taker.takeFile(m_list, m_rowKey, m_file) ? std::nullopt : std::optional(SealEnd::Stopped);
    m_rule.pattern = m_rowKey;
    m_taker.takeRule(m_list, m_rule);
    return std::nullopt;
}

} // namespace lumora
