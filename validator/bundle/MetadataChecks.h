// SPDX-License-Identifier: MIT
#pragma once

#include "PackageFacts.h"

namespace lumora
{

/// The users for whom a package was built.
enum class BuildKind {
    Debug,   ///< for the devices named in its profile, or the profile was never received
    Release, ///< the profile names no devices, or there is none
};

/// The results of checking the facts, without the artwork.
struct MetadataVerdicts
{
    bool bundleIdentifierValid = false;
    bool localizationsValid = false;
    bool urlSchemesPresent = false;
    bool facebookAppIDPresent = false;

    bool operator==(const MetadataVerdicts &) const = default;
};

BuildKind buildKind(const PackageFacts &facts);
/// "debug" or "release", as reports for programs write it.
QString buildName(BuildKind kind);

/// The identifier is valid when it occurs anywhere in the profile's text. So "com.example" is valid in a profile for
/// "com.example.app", while a wildcard is only valid for an app with exactly that identifier. A profile that was never
/// received counts as containing every identifier; an app without an identifier is never valid.
MetadataVerdicts metadataVerdicts(const PackageFacts &facts);

} // namespace lumora
