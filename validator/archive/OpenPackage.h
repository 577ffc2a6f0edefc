// SPDX-License-Identifier: MIT
#pragma once

#include "PackageSource.h"

namespace lumora
{

/// Opens what can hold an app by its name: an .ipa archive, an .app folder or an .xcarchive folder. `NotAnArchive` for
/// any other name.
Result<std::unique_ptr<PackageSource>> openPackage(const QString &path, const ExtractionLimits &limits = {});

/// True for the names that `openPackage` looks into.
bool hasPackageName(const QString &path);

} // namespace lumora
