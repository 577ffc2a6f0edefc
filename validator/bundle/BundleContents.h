// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace lumora
{

/// The text after the last dot of a file name or path; empty for a name without a dot or with its only dot in front.
QString pathExtension(const QString &path);

/// The last name with the extension "app"; empty when there is none.
QString appBundleName(const QStringList &payload);

/// The facts in a bundle's listing.
struct BundleContents
{
    bool hasInfoPlist = false;
    QStringList images;        ///< extension "png", or "iTunesArtwork" anywhere in the name
    QStringList localizations; ///< English names of the folders with the extension "lproj"
};
BundleContents bundleContents(QStringList listing);

} // namespace lumora
