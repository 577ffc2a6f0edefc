// SPDX-License-Identifier: MIT
#include "BundleLayout.h"

#include "validator/archive/PackageSource.h"

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// The name of a framework's current version; empty when it has no versions.
QString currentVersion(const PackageSource &source, const QString &versions)
{
    const PackageEntry *current = source.find(versions + u"/Current");
    if (current != nullptr && current->kind == EntryKind::Link && !current->linkTarget.contains(u'/'))
        return current->linkTarget;
    // A copy that has lost the link.
    const QStringList names = source.names(versions);
    return names.isEmpty() ? QString() : names.last();
}

} // namespace

BundleLayout bundleLayout(const PackageSource &source, const QString &bundle)
{
    const BundleLayout flat{bundle, bundle + u"/Info.plist", bundle, bundle};
    if (source.find(flat.info) != nullptr)
        return flat;
    const QString contents = bundle + u"/Contents";
    if (source.find(contents + u"/Info.plist") != nullptr)
        return {contents, contents + u"/Info.plist", contents + u"/MacOS", contents + u"/Resources"};
    const QString versions = bundle + u"/Versions";
    if (!bundle.endsWith(".framework"_L1) || !source.isFolder(versions))
        return flat;
    const QString version = versions + u'/' + currentVersion(source, versions);
    const QString resources = version + u"/Resources";
    return source.find(resources + u"/Info.plist") == nullptr
               ? flat
               : BundleLayout{version, resources + u"/Info.plist", version, resources};
}

} // namespace lumora
