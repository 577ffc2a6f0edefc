// SPDX-License-Identifier: MIT
#pragma once

#include "IconFinding.h"
#include "PictureFacts.h"

#include <QJsonObject>
#include <QString>

#include <optional>

namespace lumora
{

/// Judges a folder as a whole if it is a catalogue, a bundle or Android resources; whether it is one.
bool checkFolder(const QString &folder, IconCheck &check);
/// Judges a file outside of such folders if its name is that of an icon or a web manifest.
void checkFile(const QString &path, IconCheck &check);

// These two pass each thing to one of the following functions, which adds the path to the checked ones.

/// A folder ".appiconset".
void checkIconSet(const QString &folder, IconCheck &check);
/// A folder ".brandassets", or one ".solidimagestack".
void checkBrandAssets(const QString &folder, IconCheck &check);
void checkVisionStack(const QString &folder, IconCheck &check);
/// An Icon Composer bundle.
void checkComposerBundle(const QString &folder, IconCheck &check);
/// An Android folder "res" with an adaptive icon in it.
void checkAndroidResources(const QString &folder, IconCheck &check);
/// A readable layer of an adaptive icon, which a mask cuts: the foreground, or the shape of themed icons.
void checkMaskedLayer(const QString &file, bool isMonochrome, IconCheck &check);
/// The picture for the store, beside the folder "res".
void checkPlayPicture(const QString &file, IconCheck &check);
/// A web manifest. One that lists no icons is skipped.
void checkWebManifest(const QString &file, IconCheck &check);
/// A touch icon of a web site.
void checkTouchIcon(const QString &file, IconCheck &check);
/// A Windows or Mac icon file.
void checkIcoFile(const QString &file, IconCheck &check);
void checkIcnsFile(const QString &file, IconCheck &check);
/// The icons that the settings of the projects in the folder name. Those among the checked paths are skipped.
void checkNamedIcons(const QString &folder, IconCheck &check);
/// A picture whose size follows from its folder or its name.
void checkSizedPicture(const QString &file, QSize size, IconCheck &check);
/// The size that follows from "…/48x48/apps/ID.png", "…/48x48@2/apps/ID.png", and Windows' "NAME.scale-200.png" and
/// "NAME.targetsize-48….png"; nothing for any other file.
std::optional<QSize> hicolorSize(const QString &path);
std::optional<QSize> windowsAssetSize(const QString &fileName);

// What these functions share.

/// The JSON object in a file of bounded length; nothing if the file has no object.
std::optional<QJsonObject> readJson(const QString &path);

/// Whether a file name stays in its folder: it has no ".." and no slash.
bool isPlainName(const QString &name);

/// What happens to transparent pixels where the picture is shown.
enum class Transparency {
    Shown,     ///< they stay transparent
    Lost,      ///< they become black or white
    Refused,   ///< a store refuses them, and an alpha channel is not expected either
    Forbidden, ///< a store refuses them, but requires an alpha channel
};

/// What a slot requires of its picture.
struct SlotDemands
{
    QSize size = {}; ///< in pixels; empty if any size is accepted
    Transparency transparency = Transparency::Shown;
    /// The edge of the smallest square that is accepted besides; nothing if only `size` is.
    std::optional<int> leastSquare = {};
};

/// Judges the picture in a slot; returns its facts if the file can be read.
std::optional<PictureFacts> checkSlot(const QString &path, const SlotDemands &demands, IconCheck &check);

/// A tinted picture: whether it has colors.
void checkTinted(const PictureFacts &facts, const QString &path, IconCheck &check);

/// Whether any pixel is not opaque.
bool hasTransparency(const PictureFacts &facts);

} // namespace lumora
