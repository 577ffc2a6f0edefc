// SPDX-License-Identifier: MIT
#pragma once

#include <array>

namespace lumora
{

/// How severe a broken rule is.
enum class FindingSeverity {
    Error,   ///< a store or a build refuses the icon
    Warning, ///< the icon is accepted, but does not look as intended
    Note,    ///< no fault; good to know
};

enum class IconRule {
    ContentsUnreadable,
    FileMissing,
    FileOutside,
    PictureUnreadable,
    WrongSize,
    StoreIconMissing,
    StoreIconTransparent,
    PlatformName,
    ResourceMissing,
    StoreFileTooLong,
    IconFileBroken,
    LayerCount,
    IconTransparent,
    AlphaChannel,
    UnassignedFile,
    DuplicateSlot,
    ForeignFormat,
    StoreIconColors,
    PlayIconColors,
    TintedColors,
    OutsideSafeZone,
    MonochromeMissing,
    MonochromeOpaque,
    MaskablePurpose,
    LargePictureMissing,
    SlotEmpty,
    AppearanceMissing,
    UncommonPixels,
    WalkEnded,
};

/// One rule of the platforms.
struct IconRuleInfo
{
    IconRule rule;
    const char *id;
    FindingSeverity severity;
    const char *titleKey; ///< of the texts
    const char *fixKey;
};

inline constexpr std::array<IconRuleInfo, 29> iconRules = {{
    {IconRule::ContentsUnreadable, "contents-unreadable", FindingSeverity::Error, "ICON_RULE_CONTENTS_UNREADABLE",
     "ICON_FIX_CONTENTS_UNREADABLE"},
    {IconRule::FileMissing, "file-missing", FindingSeverity::Error, "ICON_RULE_FILE_MISSING", "ICON_FIX_FILE_MISSING"},
    {IconRule::FileOutside, "file-outside", FindingSeverity::Error, "ICON_RULE_FILE_OUTSIDE", "ICON_FIX_FILE_OUTSIDE"},
    {IconRule::PictureUnreadable, "picture-unreadable", FindingSeverity::Error, "ICON_RULE_PICTURE_UNREADABLE",
     "ICON_FIX_PICTURE_UNREADABLE"},
    {IconRule::WrongSize, "wrong-size", FindingSeverity::Error, "ICON_RULE_WRONG_SIZE", "ICON_FIX_WRONG_SIZE"},
    {IconRule::StoreIconMissing, "store-icon-missing", FindingSeverity::Error, "ICON_RULE_STORE_ICON_MISSING",
     "ICON_FIX_STORE_ICON_MISSING"},
    {IconRule::StoreIconTransparent, "store-icon-transparent", FindingSeverity::Error,
     "ICON_RULE_STORE_ICON_TRANSPARENT", "ICON_FIX_STORE_ICON_TRANSPARENT"},
    {IconRule::PlatformName, "platform-name", FindingSeverity::Error, "ICON_RULE_PLATFORM_NAME",
     "ICON_FIX_PLATFORM_NAME"},
    {IconRule::ResourceMissing, "resource-missing", FindingSeverity::Error, "ICON_RULE_RESOURCE_MISSING",
     "ICON_FIX_RESOURCE_MISSING"},
    {IconRule::StoreFileTooLong, "store-file-too-long", FindingSeverity::Error, "ICON_RULE_STORE_FILE_TOO_LONG",
     "ICON_FIX_STORE_FILE_TOO_LONG"},
    {IconRule::IconFileBroken, "icon-file-broken", FindingSeverity::Error, "ICON_RULE_ICON_FILE_BROKEN",
     "ICON_FIX_ICON_FILE_BROKEN"},
    {IconRule::LayerCount, "layer-count", FindingSeverity::Error, "ICON_RULE_LAYER_COUNT", "ICON_FIX_LAYER_COUNT"},
    {IconRule::IconTransparent, "icon-transparent", FindingSeverity::Warning, "ICON_RULE_ICON_TRANSPARENT",
     "ICON_FIX_ICON_TRANSPARENT"},
    {IconRule::AlphaChannel, "alpha-channel", FindingSeverity::Warning, "ICON_RULE_ALPHA_CHANNEL",
     "ICON_FIX_ALPHA_CHANNEL"},
    {IconRule::UnassignedFile, "unassigned-file", FindingSeverity::Warning, "ICON_RULE_UNASSIGNED_FILE",
     "ICON_FIX_UNASSIGNED_FILE"},
    {IconRule::DuplicateSlot, "duplicate-slot", FindingSeverity::Warning, "ICON_RULE_DUPLICATE_SLOT",
     "ICON_FIX_DUPLICATE_SLOT"},
    {IconRule::ForeignFormat, "foreign-format", FindingSeverity::Warning, "ICON_RULE_FOREIGN_FORMAT",
     "ICON_FIX_FOREIGN_FORMAT"},
    {IconRule::StoreIconColors, "store-icon-colors", FindingSeverity::Warning, "ICON_RULE_STORE_ICON_COLORS",
     "ICON_FIX_STORE_ICON_COLORS"},
    {IconRule::PlayIconColors, "play-icon-colors", FindingSeverity::Warning, "ICON_RULE_PLAY_ICON_COLORS",
     "ICON_FIX_PLAY_ICON_COLORS"},
    {IconRule::TintedColors, "tinted-colors", FindingSeverity::Warning, "ICON_RULE_TINTED_COLORS",
     "ICON_FIX_TINTED_COLORS"},
    {IconRule::OutsideSafeZone, "outside-safe-zone", FindingSeverity::Warning, "ICON_RULE_OUTSIDE_SAFE_ZONE",
     "ICON_FIX_OUTSIDE_SAFE_ZONE"},
    {IconRule::MonochromeMissing, "monochrome-missing", FindingSeverity::Warning, "ICON_RULE_MONOCHROME_MISSING",
     "ICON_FIX_MONOCHROME_MISSING"},
    {IconRule::MonochromeOpaque, "monochrome-opaque", FindingSeverity::Warning, "ICON_RULE_MONOCHROME_OPAQUE",
     "ICON_FIX_MONOCHROME_OPAQUE"},
    {IconRule::MaskablePurpose, "maskable-purpose", FindingSeverity::Warning, "ICON_RULE_MASKABLE_PURPOSE",
     "ICON_FIX_MASKABLE_PURPOSE"},
    {IconRule::LargePictureMissing, "large-picture-missing", FindingSeverity::Warning,
     "ICON_RULE_LARGE_PICTURE_MISSING", "ICON_FIX_LARGE_PICTURE_MISSING"},
    {IconRule::SlotEmpty, "slot-empty", FindingSeverity::Note, "ICON_RULE_SLOT_EMPTY", "ICON_FIX_SLOT_EMPTY"},
    {IconRule::AppearanceMissing, "appearance-missing", FindingSeverity::Note, "ICON_RULE_APPEARANCE_MISSING",
     "ICON_FIX_APPEARANCE_MISSING"},
    {IconRule::UncommonPixels, "uncommon-pixels", FindingSeverity::Note, "ICON_RULE_UNCOMMON_PIXELS",
     "ICON_FIX_UNCOMMON_PIXELS"},
    {IconRule::WalkEnded, "walk-ended", FindingSeverity::Note, "ICON_RULE_WALK_ENDED", "ICON_FIX_WALK_ENDED"},
}};

constexpr const IconRuleInfo &infoOf(IconRule rule)
{
    return iconRules[static_cast<std::size_t>(rule)];
}

} // namespace lumora
