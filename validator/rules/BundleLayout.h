// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace lumora
{

class PackageSource;

/// Where a bundle keeps its parts; paths are relative to the package. On iOS everything is in the bundle's folder. On
/// the Mac an app has a folder "Contents", and a framework has a folder for each of its versions.
struct BundleLayout
{
    QString root;      ///< the folder that the signature is about
    QString info;      ///< the Info.plist
    QString code;      ///< the folder of the executable
    QString resources; ///< the folder of languages, catalog and privacy manifest
};

BundleLayout bundleLayout(const PackageSource &source, const QString &bundle);

} // namespace lumora
