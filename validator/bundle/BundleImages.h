// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QList>
#include <QSize>
#include <QString>
#include <QStringList>

namespace lumora
{

class PackageSource;

/// The size in pixels of a picture in the package, from its header alone; empty when it is not a picture.
QSize pictureSize(const PackageSource &source, const QString &path);

/// `pictureSize` of each file in the folder.
QList<QSize> pictureSizes(const PackageSource &source, const QString &folder, const QStringList &names);

/// The picture that represents the app: of the candidates, in their order, the first that is 512, 144, 120, 152, 1024
/// or 114 pixels high and can be decoded, stretched to `appIconSize` points square with the corners of the iOS version.
/// Null when there is none. `sizes` are the candidates' sizes. It takes the first, so that the window and the command
/// show the same icon on every run. At a scale above 1, a picture with enough pixels is preferred to one that would be
/// enlarged.
QImage appIcon(const PackageSource &source, const QString &folder, const QStringList &candidates,
               const QList<QSize> &sizes, double minimumOS, int scale = 1);

/// The edge of the picture that the store shows.
inline constexpr int largeIconSize = 1024;

/// The package's own picture of the app at `largeIconSize`: the one beside the payload, else one of the first files in
/// the app's folder; `folder` is the app's. Null when there is none.
QImage largeIcon(const PackageSource &source, const QString &folder);

inline constexpr int appIconSize = 128;

} // namespace lumora
