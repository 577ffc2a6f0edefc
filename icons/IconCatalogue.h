// SPDX-License-Identifier: MIT
#pragma once

#include "pictures/RoundedCorners.h"

#include <QString>

#include <array>
#include <span>

namespace lumora
{

/// One output file of a platform's set. Every icon is square.
struct IconEntry
{
    const char *name; ///< the whole file name; the content is PNG whatever the ending
    int size;         ///< edge length in pixels

    bool operator==(const IconEntry &) const = default;
};

// Each list is in the order in which its files are written.

inline constexpr std::array<IconEntry, 10> iPhoneIcons = {{
    {"Icon.png", 57},
    {"Icon@2x.png", 114},
    {"Icon-60.png", 60},
    {"Icon-60@2x.png", 120},
    {"Icon-Small.png", 29},
    {"Icon-Small@2x.png", 58},
    {"Icon-Small-40.png", 40},
    {"Icon-Small-40@2x.png", 80},
    {"iTunesArtwork", 512},
    {"iTunesArtwork@2x", 1024},
}};

inline constexpr std::array<IconEntry, 12> iPadIcons = {{
    {"Icon-72.png", 72},
    {"Icon-72@2x.png", 144},
    {"Icon-76.png", 76},
    {"Icon-76@2x.png", 152},
    {"Icon-Small.png", 29},
    {"Icon-Small@2x.png", 58},
    {"Icon-Small-40.png", 40},
    {"Icon-Small-40@2x.png", 80},
    {"Icon-Small-50.png", 50},
    {"Icon-Small-50@2x.png", 100},
    {"iTunesArtwork", 512},
    {"iTunesArtwork@2x", 1024},
}};

inline constexpr std::array<IconEntry, 10> MacIcons = {{
    {"icon_16x16.png", 16},
    {"icon_16x16@2x.png", 32},
    {"icon_32x32.png", 32},
    {"icon_32x32@2x.png", 64},
    {"icon_128x128.png", 128},
    {"icon_128x128@2x.png", 256},
    {"icon_256x256.png", 256},
    {"icon_256x256@2x.png", 512},
    {"icon_512x512.png", 512},
    {"icon_512x512@2x.png", 1024},
}};

inline constexpr std::array<IconEntry, 5> AndroidIcons = {{
    {"ic_launcher_ldpi.png", 36},
    {"ic_launcher_mdpi.png", 48},
    {"ic_launcher_hdpi.png", 72},
    {"ic_launcher_xhdpi.png", 96},
    {"ic_512x512.png", 512},
}};

inline constexpr std::array<IconEntry, 9> WebTouchIcons = {{
    {"apple-touch-icon.png", 57},
    {"apple-touch-icon-precomposed.png", 57},
    {"apple-touch-icon-114x114-precomposed.png", 114},
    {"apple-touch-icon-72x72-precomposed.png", 72},
    {"apple-touch-icon-144x144-precomposed.png", 144},
    {"apple-touch-icon-60x60-precomposed.png", 60},
    {"apple-touch-icon-120x120-precomposed.png", 120},
    {"apple-touch-icon-76x76-precomposed.png", 76},
    {"apple-touch-icon-152x152-precomposed.png", 152},
}};

inline constexpr std::array<IconEntry, 5> FavIcons = {{
    {"favicon-16.png", 16},
    {"favicon-32.png", 32},
    {"favicon-48.png", 48},
    {"favicon-64.png", 64},
    {"favicon-128.png", 128},
}};

enum class IconPlatform { IPhone, IPad, Mac, Android, WebTouch, Favicon };

/// The fixed facts of one platform's set.
struct PlatformIcons
{
    IconPlatform platform;
    const char *property;         ///< the name of its list
    const char *checkboxProperty; ///< the name of the checkbox that chooses it
    const char *commandName;      ///< its name on the command line
    const char *folderSuffix;     ///< its sub-folder, a path suffix of the export folder
    const char *logLine;          ///< the line that is logged before its export
    std::span<const IconEntry> icons;
};

/// All platforms, in the order in which they are exported.
inline constexpr std::array<PlatformIcons, 6> iconPlatforms = {{
    {IconPlatform::IPhone, "iPhoneIcons", "iPhoneCheckbox", "iphone", "/iPhone", "Export iPhone icons", iPhoneIcons},
    {IconPlatform::IPad, "iPadIcons", "iPadCheckbox", "ipad", "/iPad", "Export iPad icons", iPadIcons},
    {IconPlatform::Mac, "MacIcons", "macCheckbox", "mac", "/Mac", "Export mac icons", MacIcons},
    {IconPlatform::Android, "AndroidIcons", "androidCheckbox", "android", "/Android", "Export android icons",
     AndroidIcons},
    {IconPlatform::WebTouch, "WebTouchIcons", "webTouchCheckbox", "web-touch", "/Web Touch", "Export web icons",
     WebTouchIcons},
    {IconPlatform::Favicon, "FavIcons", "favIconCheckbox", "favicon", "/Favicon", "Export favicons icons", FavIcons},
}};

/// Inside the Mac folder: the folder of the pictures. The Mac icon file beside it is packed from them.
inline constexpr char iconsetSuffix[] = "/icons.iconset";

/// The width and height of a source picture, in pixels.
inline constexpr int sourceIconSize = 1024;

/// The sub-folder of an export folder for the icon of a custom size.
inline constexpr char customFolderSuffix[] = "/Custom";

/// The file name of the icon of a custom size, beginning with a slash: "/icon_100x100.png", with "_iOS6" or "_iOS7"
/// before the ending if the corners are cut in that style.
QString customIconName(int size, CornerMode corners);

} // namespace lumora
