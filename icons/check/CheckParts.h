// SPDX-License-Identifier: MIT
#pragma once

#include "IconFinding.h"
#include "PictureFacts.h"

#include <QJsonObject>
#include <QString>

#include <optional>

namespace lumora
{

// What a walk over a folder finds is judged by one of these. Each adds the path to what was checked.

/// A folder ".appiconset".
void checkIconSet(const QString &folder, IconCheck &check);
/// A folder ".brandassets", or one ".solidimagestack".
void checkBrandAssets(const QString &folder, IconCheck &check);
void checkVisionStack(const QString &folder, IconCheck &check);
/// An Icon Composer bundle.
void checkComposerBundle(const QString &folder, IconCheck &check);
/// An Android folder "res" with an adaptive icon in it.
void checkAndroidResources(const QString &folder, IconCheck &check);
/// The store's picture beside it.
void checkPlayPicture(const QString &file, IconCheck &check);
/// A web manifest; passed over where it lists no icons.
void checkWebManifest(const QString &file, IconCheck &check);
/// A touch icon of a web site.
void checkTouchIcon(const QString &file, IconCheck &check);
/// A Windows or Mac icon file.
void checkIcoFile(const QString &file, IconCheck &check);
void checkIcnsFile(const QString &file, IconCheck &check);
/// A picture whose folder or name says what size it must have.
void checkSizedPicture(const QString &file, QSize size, IconCheck &check);
/// That size: of "…/48x48/apps/ID.png" and "…/48x48@2/apps/ID.png", and of Windows' "NAME.scale-200.png" and
/// "NAME.targetsize-48….png". Nothing for any other file.
std::optional<QSize> hicolorSize(const QString &path);
std::optional<QSize> windowsAssetSize(const QString &fileName);

// What they share.

/// A JSON object from a file of bounded length; nothing where it is none.
std::optional<QJsonObject> readJson(const QString &path);

/// Whether a file's name keeps to its folder.
bool isPlainName(const QString &name);

/// What becomes of a picture's transparency where it is shown.
enum class Transparency {
    Shown,     ///< it is shown as it is
    Lost,      ///< it turns black or white
    Refused,   ///< a store refuses it, and the channel had better not be there either
    Forbidden, ///< a store refuses it, but asks for the channel
};

/// What a slot asks of its picture.
struct SlotDemands
{
    QSize size = {}; ///< in pixels; empty where any will do
    Transparency transparency = Transparency::Shown;
};

/// Judges the picture in a slot; answers its facts where it can be read.
std::optional<PictureFacts> checkSlot(const QString &path, const SlotDemands &demands, IconCheck &check);

/// Whether the pixels let something through.
bool hasTransparency(const PictureFacts &facts);

} // namespace lumora
