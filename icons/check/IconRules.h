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
    const char *title;
    const char *fix;
};

inline constexpr std::array<IconRuleInfo, 28> iconRules = {{
    {IconRule::ContentsUnreadable, "contents-unreadable", FindingSeverity::Error,
     "The list of the folder's files is missing or cannot be read", "write the set again"},
    {IconRule::FileMissing, "file-missing", FindingSeverity::Error, "A listed file is not there",
     "add the file or take it off the list"},
    {IconRule::FileOutside, "file-outside", FindingSeverity::Error, "A listed file lies outside of the folder",
     "put the file into the folder and list it by its name alone"},
    {IconRule::PictureUnreadable, "picture-unreadable", FindingSeverity::Error, "A picture cannot be read",
     "replace it by an undamaged PNG file"},
    {IconRule::WrongSize, "wrong-size", FindingSeverity::Error, "A picture has another size than its slot",
     "replace it by a picture of the slot's size"},
    {IconRule::StoreIconMissing, "store-icon-missing", FindingSeverity::Error,
     "The icon of 1024 x 1024 pixels for the store is missing", "add it; uploads are refused without it"},
    {IconRule::StoreIconTransparent, "store-icon-transparent", FindingSeverity::Error,
     "The store's icon has transparent pixels", "put it on a color: lumora icons --flatten COLOR"},
    {IconRule::PlatformName, "platform-name", FindingSeverity::Error,
     "A slot's platform is not written as the catalogue compiler knows it", "write it in lower case"},
    {IconRule::ResourceMissing, "resource-missing", FindingSeverity::Error,
     "An adaptive icon names a resource that is not there", "add the resource or take its line out"},
    {IconRule::StoreFileTooLong, "store-file-too-long", FindingSeverity::Error,
     "The store's picture is longer than 1024 KB", "use a picture with fewer details"},
    {IconRule::IconFileBroken, "icon-file-broken", FindingSeverity::Error, "An icon file is damaged", "write it again"},
    {IconRule::LayerCount, "layer-count", FindingSeverity::Error,
     "A layered icon has fewer than two or more than five layers", "use two to five layers"},
    {IconRule::IconTransparent, "icon-transparent", FindingSeverity::Warning,
     "A picture has transparent pixels, which are shown black or white",
     "put it on a color: lumora icons --flatten COLOR"},
    {IconRule::AlphaChannel, "alpha-channel", FindingSeverity::Warning,
     "The store's icon has an alpha channel, though all of it is opaque", "save it without the channel"},
    {IconRule::UnassignedFile, "unassigned-file", FindingSeverity::Warning, "A file in the folder is in no slot",
     "assign it or remove it"},
    {IconRule::DuplicateSlot, "duplicate-slot", FindingSeverity::Warning, "Two pictures are listed for one slot",
     "take one of them off the list"},
    {IconRule::ForeignFormat, "foreign-format", FindingSeverity::Warning, "A file named .png holds another format",
     "save it as PNG"},
    {IconRule::StoreIconColors, "store-icon-colors", FindingSeverity::Warning,
     "The store's icon has a palette or a wide-gamut profile, which uploads were refused for",
     "save it as sRGB with 8 bits a channel"},
    {IconRule::TintedColors, "tinted-colors", FindingSeverity::Warning, "The tinted icon has colors",
     "use shades of gray; the system adds the tint"},
    {IconRule::OutsideSafeZone, "outside-safe-zone", FindingSeverity::Warning,
     "The picture reaches beyond the circle that every mask shows", "make the picture's content smaller"},
    {IconRule::MonochromeMissing, "monochrome-missing", FindingSeverity::Warning,
     "The adaptive icon has no monochrome layer for themed icons", "add one: lumora icons --monochrome PICTURE"},
    {IconRule::MonochromeOpaque, "monochrome-opaque", FindingSeverity::Warning,
     "The monochrome layer is opaque, so that a themed icon is a plain square", "use a picture with transparency"},
    {IconRule::MaskablePurpose, "maskable-purpose", FindingSeverity::Warning,
     "One picture is listed both as \"any\" and as \"maskable\"", "list a picture of its own for each"},
    {IconRule::LargePictureMissing, "large-picture-missing", FindingSeverity::Warning,
     "The icon file has no large picture", "add one of 256 pixels or more"},
    {IconRule::SlotEmpty, "slot-empty", FindingSeverity::Note, "A slot is empty", "add a picture if it is wanted"},
    {IconRule::AppearanceMissing, "appearance-missing", FindingSeverity::Note, "There is no dark or no tinted icon",
     "add one: lumora icons --dark PICTURE --tinted PICTURE"},
    {IconRule::UncommonPixels, "uncommon-pixels", FindingSeverity::Note,
     "The picture is interlaced or has 16 bits a channel", "save it plain with 8 bits a channel"},
    {IconRule::WalkEnded, "walk-ended", FindingSeverity::Note, "The folder holds more than was looked through",
     "check its parts one by one"},
}};

constexpr const IconRuleInfo &infoOf(IconRule rule)
{
    return iconRules[static_cast<std::size_t>(rule)];
}

} // namespace lumora
