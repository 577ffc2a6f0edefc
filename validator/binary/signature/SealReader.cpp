// SPDX-License-Identifier: MIT
#include "SealReader.h"

#include "validator/bundle/PropertyList.h"

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr QByteArrayView binaryMark = "bplist";
/// Each row has about six values; they take a kilobyte while the list is read.
constexpr PropertyListLimits binaryLimits{.fileBytes = SealReader::mostBinaryBytes,
                                          .values = 120'000,
                                          .expandedBytes = 8 << 20,
                                          .depth = 16,
                                          .containers = 40'000};

SealedFile sealedFile(const QVariant &value)
{
    SealedFile file;
    if (value.typeId() == QMetaType::QByteArray) {
        file.sha1 = value.toByteArray();
        return file;
    }
    const QVariantMap map = value.toMap();
    file.sha1 = map.value(u"hash"_s).toByteArray();
    file.sha256 = map.value(u"hash2"_s).toByteArray();
    file.codeHash = map.value(u"cdhash"_s).toByteArray();
    file.linkTarget = map.value(u"symlink"_s).toString();
    file.optional = map.value(u"optional"_s).toBool();
    return file;
}

SealRule sealRule(const QString &pattern, const QVariant &value)
{
    SealRule rule{pattern};
    if (value.typeId() == QMetaType::QVariantMap) {
        const QVariantMap map = value.toMap();
        rule.weight = map.value(u"weight"_s, 1.0).toDouble();
        rule.omit = map.value(u"omit"_s).toBool();
    } else {
        // A rule with the value false excludes files.
        rule.omit = !value.toBool();
    }
    return rule;
}

} // namespace

bool SealReader::take(QByteArrayView bytes)
{
    if (m_end)
        return false;
    m_taken += static_cast<quint64>(bytes.size());
    if (m_taken > mostBytes) {
        m_end = SealEnd::TooLarge;
    } else if (m_isXml) {
        takeXml(bytes);
    } else {
        m_kept.append(bytes);
        m_isXml = !binaryMark.startsWith(QByteArrayView(m_kept).first(qMin(m_kept.size(), binaryMark.size())));
        if (m_isXml)
            takeXml(std::exchange(m_kept, {}));
        else if (m_kept.size() > mostBinaryBytes)
            m_end = SealEnd::TooLarge;
    }
    return !m_end;
}

SealEnd SealReader::finish()
{
    if (!m_end)
        m_end = m_isXml ? SealEnd::NoSeal : readBinary();
    return *m_end;
}

SealEnd SealReader::readBinary()
{
    const auto list = propertyListDictionary(m_kept, binaryLimits);
    m_kept.clear();
    if (!list)
        return SealEnd::NoSeal;
    for (const SealList each : {SealList::Old, SealList::New}) {
        const QString digit = each == SealList::New ? u"2"_s : QString();
        if (!list->contains(u"files"_s + digit))
            continue;
        m_taker.takeList(each);
        const QVariantMap rules = list->value(u"rules"_s + digit).toMap();
        for (auto rule = rules.cbegin(); rule != rules.cend(); ++rule)
            m_taker.takeRule(each, sealRule(rule.key(), rule.value()));
        const QVariantMap files = list->value(u"files"_s + digit).toMap();
        for (auto file = files.cbegin(); file != files.cend(); ++file) {
            if (!m_taker.takeFile(each, file.key(), sealedFile(file.value())))
                return SealEnd::Stopped;
        }
    }
    return SealEnd::Whole;
}

} // namespace lumora
