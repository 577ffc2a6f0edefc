// SPDX-License-Identifier: MIT
#pragma once

#include "PackageFacts.h"

#include <QList>
#include <QSize>
#include <QStringList>

namespace lumora
{

/// The missing artwork of an app, in the order of the required lists.
struct ArtworkFindings
{
    QList<int> missingIcons; ///< edge lengths
    /// All required launch images when the app has none of them; empty when it has at least one.
    QList<QSize> missingLaunchImages;

    bool isEmpty() const { return missingIcons.isEmpty() && missingLaunchImages.isEmpty(); }
};

QList<int> requiredIcons(PlatformType platform);
QList<QSize> requiredLaunchImages(PlatformType platform);

/// The names that may be icons: those that contain "icon", "Icon" or "iTunesArtwork".
QStringList iconCandidates(const QStringList &images);
/// The names that may be launch images: those that contain "default" or "Default".
QStringList launchImageCandidates(const QStringList &images);

/// The required edge lengths at which no candidate is exactly that wide and high.
QList<int> missingIcons(PlatformType platform, const QList<QSize> &candidateSizes);
/// Every required size when no candidate has exactly one of them, else empty.
QList<QSize> missingLaunchImages(PlatformType platform, const QList<QSize> &candidateSizes);

/// "57x57".
QString sizeText(QSize size);
QStringList sizeTexts(const QList<QSize> &sizes);
/// Edge lengths as the texts of square sizes.
QStringList squareTexts(const QList<int> &edges);

} // namespace lumora
