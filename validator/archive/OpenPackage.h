// SPDX-License-Identifier: MIT
#pragma once

#include "PackageSource.h"

namespace lumora
{

/// Opens a package by its ending: an .ipa archive, an .app folder or an .xcarchive folder. Fails with `NotAnArchive`
/// for other names, with `NotFound` if nothing is there.
Result<std::unique_ptr<PackageSource>> openPackage(const QString &path, const ExtractionLimits &limits = {});

/// True for the names that `openPackage` opens.
bool hasPackageName(const QString &path);

} // namespace lumora
