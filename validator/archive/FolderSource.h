// SPDX-License-Identifier: MIT
#pragma once

#include "PackageSource.h"
#include "foundation/FileDescriptor.h"

#include <QByteArray>

namespace lumora
{

/// The kinds of folder that hold a package.
enum class FolderLayout {
    Package,      ///< the layout of an .ipa: the folder of an unpacked archive
    App,          ///< the app itself, shown as "Payload/NAME.app"
    XcodeArchive, ///< an .xcarchive, whose "Products/Applications" is shown as "Payload"
};

/// A package in a folder. Links are listed and never followed, so that nothing outside the folder is read.
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
    /// Adds the folder's contents. False when there are too many entries.
    bool list(FileDescriptor folder, const QString &relative, qsizetype depth, QList<PackageEntry> &entries);
    /// From a relative path to the shown path, and back.
    QString shown(const QString &relative) const;
    QString relative(const QString &shown) const;

    QString m_onDisk;  ///< this folder in the package's own tree, ...
    QString m_payload; ///< ... and its shown place
    FileDescriptor m_root;
};

} // namespace lumora
