// SPDX-License-Identifier: MIT
#include "AssetCatalog.h"

#include "BomStore.h"
#include "validator/binary/FaultList.h"

#include <QHash>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// The kinds of numbers in a rendition's key.
enum KeyToken : quint32 { PartToken = 2, AppearanceToken = 7, ScaleToken = 12, IdiomToken = 15, IdentifierToken = 17 };

constexpr std::array idiomNames{"universal", "phone", "pad", "tv", "car", "watch", "marketing", "mac", "vision"};
/// Of the payload before the pixels: its kind and flags.
constexpr quint64 payloadHeadSize = 12;

struct Facet
{
    QString name;
    quint16 identifier = 0;
};

struct PixelSize
{
    int width = 0;
    int height = 0;
};

/// The size of a JPEG picture, from the first frame's header.
std::optional<PixelSize> jpegSize(QByteArrayView bytes)
{
    const ByteReader file(bytes, ByteOrder::Big);
    if (file.u16(0) != 0xFFD8)
        return std::nullopt;
    quint64 at = 2;
    while (const auto marker = file.u16(at)) {
        const quint16 kind = *marker & 0xFF;
        if ((*marker & 0xFF00) != 0xFF00)
            return std::nullopt;
        // Frames are C0 to CF, except for three that are tables.
        if (kind >= 0xC0 && kind <= 0xCF && kind != 0xC4 && kind != 0xC8 && kind != 0xCC) {
            const auto height = file.u16(at + 5);
            const auto width = file.u16(at + 7);
            return height && width ? std::optional(PixelSize{*width, *height}) : std::nullopt;
        }
        const auto length = file.u16(at + 2);
        if (!length || *length < 2)
            return std::nullopt;
        at += 2 + quint64{*length};
    }
    return std::nullopt;
}

/// Where the payload of an entry begins, behind its chain of attributes.
quint64 payloadOffset(const ByteReader &csi)
{
    const quint64 chain = csi.u32(168).value_or(0);
    const quint64 lengths = csi.u32(172).value_or(0);
    return renditionHeadSize + 4 * (lengths + 1) + chain;
}

/// Whether the block is an entry, which has no place among names. Of a long catalogue not all of it is kept.
bool isEntry(QByteArrayView block)
{
    return isRendition(block) && static_cast<quint64>(block.size()) >= renditionHeadSize;
}

qsizetype memoryOf(const CatalogRendition &rendition)
{
    constexpr qsizetype perText = 24;
    const auto characters = rendition.name.size() + rendition.idiom.size() + rendition.appearance.size();
    return static_cast<qsizetype>(sizeof(CatalogRendition)) + 4 * perText + 2 * characters + rendition.jpeg.size();
}

/// Only icons for the store are that large; there is one for each idiom.
constexpr int largeIconEdge = 1024;
constexpr qsizetype largestJpeg = 4 << 20;

class CatalogReading
{
public:
    CatalogReading(const BomStore &store, AssetCatalog &catalog) : m_store(store), m_catalog(catalog) {}

    void readHeads();
    bool readKeyFormat();
    void readFacets();
    void readAppearances();
    void readRenditions();

private:
    void fault(CatalogFault what);
    BomStore::Pairs pairs(const QByteArray &tree);
    std::optional<quint16> keyNumber(const ByteReader &key, quint32 token) const;
    std::optional<CatalogRendition> rendition(const BomStore::Pair &pair) const;
    static void readPayload(const ByteReader &csi, quint64 at, CatalogRendition &rendition);

    const BomStore &m_store;
    AssetCatalog &m_catalog;
    QList<quint32> m_keyFormat;
    QHash<quint16, QString> m_facets;
    QHash<quint16, QString> m_appearances;
};

void CatalogReading::fault(CatalogFault what)
{
    addFault(m_catalog.faults, what);
}

BomStore::Pairs CatalogReading::pairs(const QByteArray &tree)
{
    BomStore::Pairs found = m_store.tree(tree);
    if (!found.whole)
        fault(CatalogFault::DamagedTree);
    return found;
}

void CatalogReading::readHeads()
{
    const ByteReader head(m_store.named("CARHEADER"), ByteOrder::Little);
    m_catalog.coreVersion = head.u32(4).value_or(0);
    m_catalog.storageVersion = head.u32(8).value_or(0);
    const ByteReader more(m_store.named("EXTENDED_METADATA"), ByteOrder::Little);
    constexpr quint64 fieldSize = 256;
    m_catalog.platformVersion = QString::fromUtf8(more.text(4 + fieldSize, fieldSize));
    m_catalog.platform = QString::fromUtf8(more.text(4 + 2 * fieldSize, fieldSize));
    m_catalog.tool = QString::fromUtf8(more.text(4 + 3 * fieldSize, fieldSize)).trimmed();
}

bool CatalogReading::readKeyFormat()
{
    const QByteArray name = m_store.holds("KEYFORMAT") ? "KEYFORMAT" : "KEYFORMATWORKAROUND";
    const ByteReader format(m_store.named(name), ByteOrder::Little);
    const auto count = format.u32(8);
    constexpr quint32 mostTokens = 64;
    if (!format.bytes().startsWith("tmfk") || !count || *count > mostTokens)
        return false;
    for (quint64 i = 0; i < *count; ++i) {
        const auto token = format.u32(12 + i * 4);
        if (!token)
            return false;
        m_keyFormat += *token;
    }
    return true;
}

void CatalogReading::readFacets()
{
    for (const BomStore::Pair &pair : pairs("FACETKEYS").pairs) {
        if (isEntry(pair.key) || isEntry(pair.value)) {
            fault(CatalogFault::DamagedTree);
            continue;
        }
        const QString name = QString::fromUtf8(pair.key);
        m_catalog.facets += name;
        const ByteReader value(pair.value, ByteOrder::Little);
        const quint16 count = value.u16(4).value_or(0);
        for (quint64 i = 0; i < count; ++i) {
            const auto attribute = value.u16(6 + i * 4);
            const auto number = value.u16(8 + i * 4);
            if (!number)
                break;
            if (*attribute == IdentifierToken)
                m_facets.insert(*number, name);
        }
    }
    std::ranges::sort(m_catalog.facets);
}

void CatalogReading::readAppearances()
{
    for (const BomStore::Pair &pair : pairs("APPEARANCEKEYS").pairs) {
        if (isEntry(pair.key)) {
            fault(CatalogFault::DamagedTree);
            continue;
        }
        const auto number = ByteReader(pair.value, ByteOrder::Little).u16(0);
        if (number && *number != 0)
            m_appearances.insert(*number, QString::fromUtf8(pair.key));
    }
}

std::optional<quint16> CatalogReading::keyNumber(const ByteReader &key, quint32 token) const
{
    const qsizetype at = m_keyFormat.indexOf(token);
    return at < 0 ? std::nullopt : key.u16(static_cast<quint64>(at) * 2);
}

void CatalogReading::readPayload(const ByteReader &csi, quint64 at, CatalogRendition &rendition)
{
    const QByteArrayView payload = csi.clipped(at, csi.size());
    const ByteReader reader(payload, ByteOrder::Little);
    constexpr quint32 opaqueBit = 2;
    if (payload.startsWith("MLEC")) {
        const auto flags = reader.u32(4);
        if (flags)
            rendition.opaque = (*flags & opaqueBit) != 0;
    } else if (payload.startsWith("DWAR") && rendition.pixelFormat == "JPEG") {
        rendition.opaque = true;
        if (rendition.width == 0 && rendition.height == 0) {
            const auto size = jpegSize(reader.clipped(12, reader.size()));
            rendition.width = size ? size->width : 0;
            rendition.height = size ? size->height : 0;
        }
        // Of a long catalogue only the beginning of a picture was kept.
        const auto file = reader.span(12, reader.u32(8).value_or(0));
        if (rendition.part == CatalogRendition::IconPart && rendition.width >= largeIconEdge && file &&
            file->size() <= largestJpeg)
            rendition.jpeg = file->toByteArray();
    }
}

std::optional<CatalogRendition> CatalogReading::rendition(const BomStore::Pair &pair) const
{
    const ByteReader csi(pair.value, ByteOrder::Little);
    if (!isRendition(pair.value) || !csi.holds(0, renditionHeadSize))
        return std::nullopt;
    CatalogRendition found;
    found.width = static_cast<int>(qMin<quint32>(*csi.u32(12), 1U << 20));
    found.height = static_cast<int>(qMin<quint32>(*csi.u32(16), 1U << 20));
    found.scale = *csi.u32(20) / 100.0;
    found.pixelFormat = csi.span(24, 4)->toByteArray();
    std::ranges::reverse(found.pixelFormat);
    found.layout = *csi.u16(36);
    found.name = QString::fromUtf8(csi.text(40, 128));
    const ByteReader key(pair.key, ByteOrder::Little);
    found.part = keyNumber(key, PartToken).value_or(0);
    const quint16 idiom = keyNumber(key, IdiomToken).value_or(0);
    found.idiom = idiom < idiomNames.size() ? QString::fromLatin1(idiomNames[idiom]) : u"idiom %1"_s.arg(idiom);
    const quint16 appearance = keyNumber(key, AppearanceToken).value_or(0);
    if (appearance != 0)
        found.appearance = m_appearances.value(appearance, u"appearance %1"_s.arg(appearance));
    found.facet = m_facets.value(keyNumber(key, IdentifierToken).value_or(0));
    readPayload(csi, payloadOffset(csi), found);
    return found;
}

void CatalogReading::readRenditions()
{
    qsizetype memory = 0;
    for (const BomStore::Pair &pair : pairs("RENDITIONS").pairs) {
        const auto found = rendition(pair);
        if (!found) {
            fault(CatalogFault::DamagedRendition);
            continue;
        }
        memory += memoryOf(*found);
        if (memory > AssetCatalog::mostRenditionBytes) {
            fault(CatalogFault::TooLarge);
            return;
        }
        m_catalog.renditions += *found;
    }
}

} // namespace

bool isRendition(QByteArrayView start)
{
    return start.startsWith("ISTC");
}

quint64 renditionSizeToPixels(QByteArrayView start, quint64 pictureBytes)
{
    const ByteReader csi(start, ByteOrder::Little);
    const bool isSizeless = csi.u32(12) == 0U && csi.u32(16) == 0U && start.sliced(24, 4) == QByteArrayView("GEPJ");
    return payloadOffset(csi) + payloadHeadSize + (isSizeless ? pictureBytes : 0);
}

std::optional<AssetCatalog> readAssetCatalog(QByteArrayView bytes)
{
    const auto store = BomStore::open(bytes);
    return store ? readAssetCatalog(*store) : std::nullopt;
}

std::optional<AssetCatalog> readAssetCatalog(const BomStore &store)
{
    if (!store.holds("CARHEADER"))
        return std::nullopt;
    AssetCatalog catalog;
    CatalogReading reading(store, catalog);
    reading.readHeads();
    if (!reading.readKeyFormat())
        return std::nullopt;
    reading.readFacets();
    reading.readAppearances();
    reading.readRenditions();
    return catalog;
}

} // namespace lumora
