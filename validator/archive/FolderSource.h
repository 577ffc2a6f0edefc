// SPDX-License-Identifier: MIT
#pragma once

#include "PackageSource.h"
#include "foundation/FileDescriptor.h"

#include <QByteArray>

namespace lumora
{

/// What kind of folder holds the package.
enum class FolderLayout {
    Package,      ///< laid out like an .ipa: what an archive was unpacked to
    App,          ///< the app itself, shown as "Payload/NAME.app"
    XcodeArchive, ///< an .xcarchive, whose "Products/Applications" is shown as "Payload"
};

/// A package that lies in a folder. Links are listed and never followed, so that nothing outside the folder is read.
class FolderSource final : public PackageSource
{
public:
    static Result<std::unique_ptr<PackageSource>> open(const QString &path, FolderLayout layout,
                                                       const ExtractionLimits &limits = {});

    Result<std::unique_ptr<EntryStream>> open(const PackageEntry &entry) const override;
    QString pathOnDisk(const PackageEntry &entry) const override;

private:
    FolderSource(QString path, FolderLayout layout, const ExtractionLimits &limits, FileDescriptor root);

    void listAll();
    /// Adds what lies in the folder. False when there are too many entries.
    bool list(FileDescriptor folder, const QString &relative, qsizetype depth, QList<PackageEntry> &entries);
    /// The shown path of what lies at the relative path, and the other way round.
    QString shown(const QString &relative) const;
    QString relative(const QString &shown) const;

    QString m_onDisk;  ///< this folder in the package's own tree, ...
    QString m_payload; ///< ... and where it is shown
    FileDescriptor m_root;
};

} // namespace lumora
