// SPDX-License-Identifier: MIT
#pragma once

#include "BundleLayout.h"
#include "PrivacyManifest.h"
#include "validator/archive/PackageSource.h"
#include "validator/binary/BinaryFacts.h"
#include "validator/binary/catalog/AssetCatalog.h"
#include "validator/binary/signature/CodeSignature.h"
#include "validator/binary/signature/ProvisioningProfile.h"
#include "validator/binary/signature/SealComparison.h"
#include "validator/bundle/LocalizedInfo.h"

#include <QVariantMap>

#include <functional>
#include <optional>
#include <stop_token>

namespace lumora
{

enum class BundleKind { App, Extension, WatchApp, Framework, Resources };

/// A Mach-O file of the package.
struct PackageBinary
{
    QString path;
    BinaryFacts facts;
    /// One for each signed slice, in the order of the slices.
    QList<CodeSignature> signatures;

    bool isSigned() const { return !facts.slices.isEmpty() && signatures.size() == facts.slices.size(); }
};

/// The comparison of a bundle's files with its signature.
struct BundleSeal
{
    bool infoBound = false; ///< the signature is about this Info.plist
    bool sealBound = false; ///< the signature is about this seal
    SealFindings findings;
};

/// One bundle: the app, or a bundle nested in it. Paths are relative to the package.
struct PackageBundle
{
    QString path;
    BundleLayout layout;
    BundleKind kind = BundleKind::App;
    std::optional<QVariantMap> info; ///< empty when there is no readable Info.plist
    LocalizedInfo localized;         ///< what the bundle's languages put in the place of its values
    QString executable;              ///< path; empty when the bundle names none
    qsizetype binary = -1;           ///< number of the executable in `PackageContents::binaries`
    BundleSeal seal;
    std::optional<ProvisioningProfile> profile;
    bool hasProfileFile = false;
    std::optional<AssetCatalog> catalog; ///< of the app; no rule asks for those of nested bundles
    std::optional<PrivacyManifest> privacy;
    bool hasPrivacyFile = false;

    QString profilePath() const;                          ///< the place of the profile, whether there is one or not
    QString privacyPath() const;                          ///< likewise that of the privacy manifest
    QString localizedPath(const QString &language) const; ///< the file of the language's values
    QString text(const QString &key) const;               ///< of the Info.plist; a number as text
    bool has(const QString &key) const { return info && info->contains(key); }
    /// The text as its users see it: that of the Info.plist, else as the languages have it.
    QString shownText(const QString &key) const;
    /// The last step of the path.
    QString name() const { return path.mid(path.lastIndexOf(u'/') + 1); }
};

struct PackageFile
{
    QString path;
    quint64 size = 0; ///< unpacked; bytes
};

/// The contents of a package, read once; independent of rules.
struct PackageContents
{
    QList<PackageBundle> bundles; ///< the app first; empty if there is none
    QList<PackageBinary> binaries;
    QStringList staticArchives;
    QStringList unread;       ///< property lists and profiles that are too large, ordered by path
    QList<PackageFile> files; ///< all files and links, ordered by path, code unit by code unit
    quint64 packedSize = 0;
    bool isArchive = false; ///< an .ipa; other forms have no files beside "Payload" yet
    WholeReading reading;   ///< how the reading itself went

    const PackageBundle *app() const { return bundles.isEmpty() ? nullptr : &bundles.first(); }
    const PackageBinary *binaryOf(const PackageBundle &bundle) const;
    const CodeSignature *signatureOf(const PackageBundle &bundle) const;
    bool holds(const QString &path) const;
    bool isUnread(const QString &path) const { return unread.contains(path); }
    bool holdsFolder(const QString &path) const;
};

/// Called when the reading of a file begins, with the file's size, on the reading threads, several at a time.
using ReadingProgress = std::function<void(quint64 bytes)>;

/// Reads every file of the package once. A file that is larger than any real file of its kind counts as unreadable.
PackageContents readPackageContents(const PackageSource &source, const std::stop_token &stop = {},
                                    const ReadingProgress &progress = {});

} // namespace lumora
