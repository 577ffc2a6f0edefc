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
    /// What a rendition is stored as; the numbers are the file's own, and there are more of them.
    enum Layout : quint16 {
        Vector = 9,
        Picture = 12,
        Raw = 1000,
        AtlasLink = 1003,
        Atlas = 1004,
        MultiSizeSet = 1010,
    };
    /// What parts of an icon set are called; the numbers are the file's own.
    enum Part : quint16 { IconSetPart = 218, IconPart = 220 };

    QString facet; ///< the name it is asked for by; empty when no facet leads to it
    QString name;  ///< of the file it was made from
    int width = 0; ///< pixels; of a JPEG picture, whose entry says 0, from the picture itself
    int height = 0;
    double scale = 0;   ///< 1, 2, 3; 0 for what has none
    QString idiom;      ///< "universal", "phone", "pad" ...
    QString appearance; ///< empty for the one that fits any
    quint16 part = 0;
    quint16 layout = 0;
    QByteArray pixelFormat; ///< "ARGB", "GA8 ", "JPEG" ...
    /// Nothing when the entry does not say it: what lies in an atlas is marked there for all pictures together.
    std::optional<bool> opaque;

    bool isPicture() const { return layout == Picture || layout == AtlasLink || pixelFormat == "JPEG"; }
};

enum class CatalogFault {
    DamagedTree,      ///< a tree that leads out of the file, into itself or nowhere
    DamagedRendition, ///< an entry that is cut off
};

/// The facts of a compiled asset catalogue, `Assets.car`; no pixels.
struct AssetCatalog
{
    quint32 coreVersion = 0;
    quint32 storageVersion = 0;
    QString tool;     ///< that made it; empty in old ones
    QString platform; ///< "ios" ...
    QString platformVersion;
    QStringList facets; ///< in order
    QList<CatalogRendition> renditions;
    QList<CatalogFault> faults;
};

/// Nothing when the bytes are no asset catalogue. Bounded in time and memory whatever the file says.
std::optional<AssetCatalog> readAssetCatalog(QByteArrayView bytes);

} // namespace lumora
