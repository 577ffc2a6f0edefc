// SPDX-License-Identifier: MIT
#include "PropertyList.h"

#include <QDateTime>
#include <QRegularExpression>
#include <QStringDecoder>

#include <plist/plist.h>

#include <cstdlib>
#include <memory>

namespace lumora
{

namespace
{

struct FreePlist
{
    void operator()(void *node) const { ::plist_free(node); }
};
using PlistPointer = std::unique_ptr<void, FreePlist>;

struct FreeMemory
{
    void operator()(void *memory) const { std::free(memory); }
};

QVariant valueOf(plist_t node, qsizetype depthLeft);

QVariantList arrayOf(plist_t node, qsizetype depthLeft)
{
    QVariantList list;
    const std::uint32_t size = ::plist_array_get_size(node);
    list.reserve(size);
    // The iterator follows the links; access by index would walk from the start each time.
    plist_array_iter iterator = nullptr;
    ::plist_array_new_iter(node, &iterator);
    const std::unique_ptr<void, FreeMemory> owner(iterator);
    for (std::uint32_t i = 0; i < size; ++i) {
        plist_t item = nullptr;
        ::plist_array_next_item(node, iterator, &item);
        list += valueOf(item, depthLeft - 1);
    }
    return list;
}

QVariantMap dictionaryOf(plist_t node, qsizetype depthLeft)
{
    QVariantMap map;
    plist_dict_iter iterator = nullptr;
    ::plist_dict_new_iter(node, &iterator);
    const std::unique_ptr<void, FreeMemory> owner(iterator);
    while (true) {
        char *key = nullptr;
        plist_t item = nullptr;
        ::plist_dict_next_item(node, iterator, &key, &item);
        const std::unique_ptr<char, FreeMemory> keyOwner(key);
        if (item == nullptr)
            return map;
        map.insert(QString::fromUtf8(key), valueOf(item, depthLeft - 1));
    }
}

QVariant valueOf(plist_t node, qsizetype depthLeft)
{
    if (node == nullptr || depthLeft <= 0)
        return {};
    switch (::plist_get_node_type(node)) {
    case PLIST_BOOLEAN: {
        std::uint8_t value = 0;
        ::plist_get_bool_val(node, &value);
        return value != 0;
    }
    case PLIST_UINT: {
        std::uint64_t value = 0;
        ::plist_get_uint_val(node, &value);
        return static_cast<qlonglong>(value);
    }
    case PLIST_REAL: {
        double value = 0;
        ::plist_get_real_val(node, &value);
        return value;
    }
    case PLIST_STRING: {
        std::uint64_t length = 0;
        const char *text = ::plist_get_string_ptr(node, &length);
        return text == nullptr ? QString() : QString::fromUtf8(text, static_cast<qsizetype>(length));
    }
    case PLIST_DATA: {
        std::uint64_t length = 0;
        const char *data = ::plist_get_data_ptr(node, &length);
        return data == nullptr ? QByteArray() : QByteArray(data, static_cast<qsizetype>(length));
    }
    case PLIST_DATE: {
        std::int32_t seconds = 0;
        std::int32_t microseconds = 0;
        ::plist_get_date_val(node, &seconds, &microseconds);
        return QDateTime(QDate(2001, 1, 1), QTime(0, 0), Qt::UTC).addSecs(seconds);
    }
    case PLIST_ARRAY:
        return arrayOf(node, depthLeft);
    case PLIST_DICT:
        return dictionaryOf(node, depthLeft);
    default:
        return {};
    }
}

bool isBinary(QByteArrayView bytes)
{
    return bytes.startsWith("bplist");
}

/// As UTF-8 without a byte order mark, the only encoding that libplist reads.
QByteArray asUtf8(const QByteArray &bytes)
{
    const auto encoding = QStringDecoder::encodingForData(bytes, u'<');
    if (!encoding || *encoding == QStringConverter::Utf8)
        return bytes.startsWith("\xEF\xBB\xBF") ? bytes.sliced(3) : bytes;
    QStringDecoder decoder(*encoding);
    const QString text = decoder(bytes);
    return text.toUtf8();
}

/// Whether there is a zero, plain or as a character reference. libplist ends the program at a zero in a key.
bool holdsZero(const QByteArray &xml)
{
    static const QRegularExpression reference(QStringLiteral("&#[xX]?0*;"));
    return xml.contains('\0') || reference.match(QString::fromLatin1(xml)).hasMatch();
}

bool opensContainer(QByteArrayView tag)
{
    return tag.startsWith("<array") || tag.startsWith("<dict");
}

/// The largest number of arrays and dictionaries that are open at the same place. A closing tag counts only in a text
/// as Apple's tools write it: behind a comment, a quotation mark or a tag inside a tag it may be no tag at all.
qsizetype deepestContainer(QByteArrayView xml)
{
    qsizetype deepest = 0;
    qsizetype open = 0;
    bool isPlain = true;
    for (qsizetype at = xml.indexOf('<'); at >= 0; at = xml.indexOf('<', at + 1)) {
        const qsizetype end = xml.indexOf('>', at);
        const QByteArrayView tag = xml.sliced(at, (end < 0 ? xml.size() : end) - at);
        if (deepest > 0 && (tag.startsWith("<!") || tag.startsWith("<?") || tag.contains('"') || tag.contains('\'') ||
                            tag.lastIndexOf('<') > 0))
            isPlain = false;
        if (opensContainer(tag) && (!isPlain || !tag.endsWith('/')))
            deepest = qMax(deepest, ++open);
        else if (isPlain && open > 0 && (tag == QByteArrayView("</array") || tag == QByteArrayView("</dict")))
            --open;
    }
    return deepest;
}

/// XML has no references, so the number of tags limits its unfolded size.
bool xmlIsBounded(const QByteArray &xml, const PropertyListLimits &limits)
{
    // Most tags come in pairs.
    constexpr qsizetype containersPerDepth = 100;
    return xml.count('<') <= limits.values * 2 && xml.count("<array") + xml.count("<dict") <= limits.containers &&
           deepestContainer(xml) <= limits.depth * containersPerDepth;
}

} // namespace

std::optional<QVariantMap> propertyListDictionary(const QByteArray &bytes, const PropertyListLimits &limits)
{
    if (bytes.size() > limits.fileBytes)
        return std::nullopt;
    QByteArray list = bytes;
    if (isBinary(bytes)) {
        if (!binaryPlistIsBounded(bytes, limits))
            return std::nullopt;
    } else {
        list = asUtf8(bytes);
        if (!xmlIsBounded(list, limits) || holdsZero(list))
            return std::nullopt;
    }
    plist_t parsed = nullptr;
    ::plist_from_memory(list.constData(), static_cast<std::uint32_t>(list.size()), &parsed);
    const PlistPointer root(parsed);
    if (!root || ::plist_get_node_type(root.get()) != PLIST_DICT)
        return std::nullopt;
    return dictionaryOf(root.get(), limits.depth);
}

} // namespace lumora
