// SPDX-License-Identifier: MIT
#include "OpenPackage.h"

#include "FolderSource.h"
#include "PackageView.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace lumora
{

Result<std::unique_ptr<PackageSource>> openPackage(const QString &path, const ExtractionLimits &limits)
{
    // Shell completion may have added a slash to a folder's name.
    const QString name = QDir::cleanPath(path);
    if (name.endsWith(u".ipa"))
        return PackageView::open(path, limits);
    if (name.endsWith(u".app"))
        return FolderSource::open(path, FolderLayout::App, limits);
    if (name.endsWith(u".xcarchive"))
        return FolderSource::open(path, FolderLayout::XcodeArchive, limits);
    if (!QFileInfo::exists(path))
        return Failure{FailureCode::NotFound, path, {}};
    return Failure{FailureCode::NotAnArchive, path, "DETAIL_PACKAGE_NAME"};
}

bool hasPackageName(const QString &path)
{
    const QString name = QDir::cleanPath(path);
    return name.endsWith(u".ipa") || name.endsWith(u".app") || name.endsWith(u".xcarchive");
}

} // namespace lumora
