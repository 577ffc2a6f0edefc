// SPDX-License-Identifier: MIT
#pragma once

#include "FilePlan.h"
#include "TodaySet.h"
#include "foundation/Result.h"

#include <QColor>
#include <QString>

namespace lumora
{

class Motifs;

/// The form of a catalogue for iOS.
enum class IosForm {
    OneSize, ///< one picture of 1024 pixels, from which Xcode makes the others
    Sizes,   ///< a picture for each slot
};

struct SetOptions
{
    QString name; ///< of the app: the Linux icon's file name, the manifest's name, the bundle's name
    IosForm iosForm = IosForm::OneSize;
};

// Each function adds its set's files to the plan, below `folder` (without a slash at its end, empty for none). It fails
// without a subject: with `HasTransparency` if the icon is transparent, the platform forbids that and no color to
// flatten it is given; with `NeedsLayers` if there are too few layers.

Outcome planSet(TodaySet set, const Motifs &motifs, const SetOptions &options, const QString &folder, FilePlan &plan);

Outcome planIos(const Motifs &motifs, const SetOptions &options, const QString &folder, FilePlan &plan);
Outcome planMacOs(const Motifs &motifs, const QString &folder, FilePlan &plan);
Outcome planWatchOs(const Motifs &motifs, const QString &folder, FilePlan &plan);
Outcome planTvOs(const Motifs &motifs, const QString &folder, FilePlan &plan);
Outcome planVisionOs(const Motifs &motifs, const QString &folder, FilePlan &plan);
Outcome planIconComposer(const Motifs &motifs, const SetOptions &options, const QString &folder, FilePlan &plan);
Outcome planWeb(const Motifs &motifs, const SetOptions &options, const QString &folder, FilePlan &plan);
Outcome planWindows(const Motifs &motifs, const QString &folder, FilePlan &plan);
Outcome planLinux(const Motifs &motifs, const SetOptions &options, const QString &folder, FilePlan &plan);

/// The names of an Android app's icons.
struct AndroidNames
{
    QString icon = QStringLiteral("ic_launcher");
    QString type = QStringLiteral("mipmap");             ///< of resource: "mipmap" or "drawable"
    QString round = QStringLiteral("ic_launcher_round"); ///< empty for no round pictures
    /// Names the color resource behind the foreground, and the file that defines it.
    QString backgroundColor = QStringLiteral("ic_launcher_background");
    bool notification = true;
    bool playStore = true;
};

/// The resources of an Android app below `folder`/res, the store's picture beside them.
Outcome planAdaptive(const Motifs &motifs, const AndroidNames &names, const QString &folder, FilePlan &plan);

/// The icon as an opaque picture that fills its square. Fails with `HasTransparency` as above.
Result<PictureRecipe> opaqueIcon(const Motifs &motifs, int edge, FilePlan &plan);

/// A picture of one of iOS's three appearances in this size.
enum class Appearance { Light, Dark, Tinted };
Result<PictureRecipe> iosPicture(const Motifs &motifs, Appearance appearance, int edge, FilePlan &plan);
/// Whether there is a dark picture.
bool hasDarkIcon(const Motifs &motifs);

/// The foreground or monochrome layer of an adaptive icon with this edge length: the given picture, else the icon
/// inside the safe zone.
PictureRecipe adaptiveLayer(const Motifs &motifs, Motif motif, int edge, FilePlan &plan);

/// The icon inside the circle that every mask shows of a maskable picture with this edge length, on the background
/// color.
PictureRecipe maskableIcon(const Motifs &motifs, int edge, FilePlan &plan);

/// The icon; a transparent one on the background color.
PictureRecipe touchIcon(const Motifs &motifs, int edge, FilePlan &plan);

/// A Windows icon file of these sizes.
PlannedFile windowsIcon(const QString &path, const std::vector<int> &edges);

/// A Mac icon file.
PlannedFile macIconFile(const QString &path);

/// Returns the background color, and records in the plan where it comes from.
QColor notedBackground(const Motifs &motifs, FilePlan &plan);

/// `folder`/`name`, or `name` if `folder` is empty.
QString below(const QString &folder, const QString &name);

} // namespace lumora
