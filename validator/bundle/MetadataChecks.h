// SPDX-License-Identifier: MIT
#pragma once

#include "PackageFacts.h"

namespace lumora
{

/// For whom a package was built.
enum class BuildKind {
    Debug,   ///< for the devices named in its profile, or the profile was never received
    Release, ///< the profile names no devices, or there is none
};

/// What the facts say besides the artwork.
struct MetadataVerdicts
{
    bool bundleIdentifierValid = false;
    bool localizationsValid = false;
    bool urlSchemesPresent = false;
    bool facebookAppIDPresent = false;

    bool operator==(const MetadataVerdicts &) const = default;
};

BuildKind buildKind(const PackageFacts &facts);

/// The identifier is valid when it occurs anywhere in the profile's text, so "com.example" is valid in a profile for
/// "com.example.app", while a wildcard is only valid for an app of that very identifier. A profile that was never
/// received counts as containing everything; an app without identifier has none that a text could contain.
MetadataVerdicts metadataVerdicts(const PackageFacts &facts);

} // namespace lumora
