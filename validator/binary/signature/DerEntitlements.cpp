// SPDX-License-Identifier: MIT
#include "DerEntitlements.h"

#include "DerElement.h"

namespace lumora
{

namespace
{

/// The newer of the two forms begins with a version, and its dictionaries have a tag of their own.
constexpr quint8 versioned = 0x70;
constexpr quint8 dictionary = 0xB0;
constexpr int deepest = 16;

std::optional<QVariantMap> mapOf(QByteArrayView content, int depthLeft);

std::optional<QVariant> valueOf(const DerElement &element, int depthLeft)
{
    if (depthLeft == 0)
        return std::nullopt;
    switch (element.tag) {
    case DerElement::boolean:
        return element.content.size() == 1 ? std::optional<QVariant>(element.content[0] != 0) : std::nullopt;
    case DerElement::integer: {
        if (element.content.isEmpty() || element.content.size() > 8)
            return std::nullopt;
        auto value = static_cast<quint64>(static_cast<qlonglong>(static_cast<qint8>(element.content[0])));
        for (const char byte : element.content.sliced(1))
            value = value << 8 | static_cast<quint8>(byte);
        return static_cast<qlonglong>(value);
    }
    case DerElement::utf8Text:
        return QString::fromUtf8(element.content);
    case DerElement::octets:
        return element.content.toByteArray();
    case DerElement::sequence: {
        const auto items = derElements(element.content);
        if (!items)
            return std::nullopt;
        QVariantList list;
        for (const DerElement &item : *items) {
            const auto value = valueOf(item, depthLeft - 1);
            if (!value)
                return std::nullopt;
            list += *value;
        }
        return list;
    }
    case DerElement::set:
    case dictionary: {
        const auto map = mapOf(element.content, depthLeft - 1);
        return map ? std::optional<QVariant>(*map) : std::nullopt;
    }
    default:
        return std::nullopt;
    }
}

std::optional<QVariantMap> mapOf(QByteArrayView content, int depthLeft)
{
    const auto pairs = derElements(content);
    if (!pairs)
        return std::nullopt;
    QVariantMap map;
    for (const DerElement &pair : *pairs) {
        const auto parts = derElements(pair.content, 2);
        if (pair.tag != DerElement::sequence || !parts || parts->size() != 2 ||
            parts->first().tag != DerElement::utf8Text)
            return std::nullopt;
        const auto value = valueOf(parts->last(), depthLeft);
        if (!value)
            return std::nullopt;
        map.insert(QString::fromUtf8(parts->first().content), *value);
    }
    return map;
}

} // namespace

std::optional<QVariantMap> entitlementsFromDer(QByteArrayView der)
{
    const auto outer = derElement(der);
    if (!outer)
        return std::nullopt;
    if (outer->tag == DerElement::set)
        return mapOf(outer->content, deepest);
    const auto parts = derElements(outer->content, 2);
    if (outer->tag != versioned || !parts || parts->size() != 2 || parts->last().tag != dictionary)
        return std::nullopt;
    return mapOf(parts->last().content, deepest);
}

} // namespace lumora
