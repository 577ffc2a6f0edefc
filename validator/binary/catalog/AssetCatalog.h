// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>

namespace lumora
{

/// One picture, color or other thing in a compiled asset catalogue.
struct CatalogRendition
{
    /// How a rendition is stored; the numbers are those of the file, which has more kinds.
    enum Layout : quint16 {
        Vector = 9,
        Picture = 12,
        Raw = 1000,
        AtlasLink = 1003,
        Atlas = 1004,
        MultiSizeSet = 1010,
    };
    /// The parts of an icon set; the numbers are those of the file.
    enum Part : quint16 { IconSetPart = 218, IconPart = 220 };

    QString facet; ///< the name by which apps request it; empty when no facet refers to it
    QString name;  ///< of its source file
    int width = 0; ///< pixels; for a JPEG picture, whose entry has 0, from the picture itself
    int height = 0;
    double scale = 0;   ///< 1, 2, 3; 0 for none
    QString idiom;      ///< "universal", "phone", "pad" ...
    QString appearance; ///< empty for any appearance
    quint16 part = 0;
    quint16 layout = 0;
    QByteArray pixelFormat; ///< "ARGB", "GA8 ", "JPEG" ...
    QByteArray jpeg;        ///< the file of a large icon that is a JPEG picture and was read whole; else empty
    /// Empty when the entry does not say it: an atlas has one mark for all its pictures.
    std::optional<bool> opaque;

    bool operator==(const CatalogRendition &) const = default;

    bool isPicture() const { return layout == Picture || layout == AtlasLink || pixelFormat == "JPEG"; }
};

enum class CatalogFault {
    DamagedTree,      ///< a tree with a reference out of the file, to itself or to nothing
    DamagedRendition, ///< an entry that is cut off
    TooLarge,         ///< more entries than can be kept
};

/// The facts of a compiled asset catalogue, `Assets.car`; of its pictures only those that are files themselves.
struct AssetCatalog
{
    static constexpr qsizetype mostRenditionBytes = 20 << 20;

    quint32 coreVersion = 0;
    quint32 storageVersion = 0;
    QString tool;     ///< of the tool that made it; empty in old catalogues
    QString platform; ///< "ios" ...
    QString platformVersion;
    QStringList facets; ///< in order
    /// All up to `mostRenditionBytes`, of the entries and their texts; of more the catalogue has a fault.
    QList<CatalogRendition> renditions;
    QList<CatalogFault> faults;
};

class BomStore;

/// Empty when the bytes are not an asset catalogue. Time and memory are bounded whatever the file contains.
std::optional<AssetCatalog> readAssetCatalog(QByteArrayView bytes);
/// The same for an opened container.
std::optional<AssetCatalog> readAssetCatalog(const BomStore &store);

/// The part of a rendition's entry that has the same size in all of them; bytes.
constexpr quint64 renditionHeadSize = 176;
/// Whether a block that starts so is a rendition's entry.
bool isRendition(QByteArrayView start);
/// How many bytes of an entry give all facts, from its first `renditionHeadSize` bytes. That many more of a picture
/// that does not give its size in the entry.
quint64 renditionSizeToPixels(QByteArrayView start, quint64 pictureBytes);

} // namespace lumora
