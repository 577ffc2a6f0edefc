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

// Each adds its set's files to the plan, below `folder` (without a slash at its end, empty for none). They fail with
// `HasTransparency` and without a subject where the icon lets something through that the platform forbids and no color
// to flatten it was given, with `NeedsLayers` where there are not enough layers.

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

/// The names that an Android app calls its icons by.
struct AndroidNames
{
    QString icon = QStringLiteral("ic_launcher");
    QString type = QStringLiteral("mipmap");             ///< of resource: "mipmap" or "drawable"
    QString round = QStringLiteral("ic_launcher_round"); ///< empty for no round pictures
    /// Of the color resource behind the foreground, and of the file that defines it.
    QString backgroundColor = QStringLiteral("ic_launcher_background");
    bool notification = true;
    bool playStore = true;
};

/// The resources of an Android app below `folder`/res, the store's picture beside them.
Outcome planAdaptive(const Motifs &motifs, const AndroidNames &names, const QString &folder, FilePlan &plan);

/// The icon as an opaque picture that fills its square. Fails with `HasTransparency` as above.
Result<PictureRecipe> opaqueIcon(const Motifs &motifs, int edge, FilePlan &plan);

/// A picture of iOS's three appearances in that size.
enum class Appearance { Light, Dark, Tinted };
Result<PictureRecipe> iosPicture(const Motifs &motifs, Appearance appearance, int edge, FilePlan &plan);
/// Whether there is a dark picture besides the light one.
bool hasDarkIcon(const Motifs &motifs);

/// The foreground or monochrome layer of an adaptive icon in that edge length: as it was given, else the icon inside
/// the safe zone.
PictureRecipe adaptiveLayer(const Motifs &motifs, Motif motif, int edge, FilePlan &plan);

/// The icon within the circle that a maskable picture of that edge length always shows, on the background color.
PictureRecipe maskableIcon(const Motifs &motifs, int edge, FilePlan &plan);

/// The icon on the background color where it lets something through.
PictureRecipe touchIcon(const Motifs &motifs, int edge, FilePlan &plan);

/// A Windows icon file of these sizes.
PlannedFile windowsIcon(const QString &path, const std::vector<int> &edges);

/// A Mac icon file.
PlannedFile macIconFile(const QString &path);

/// Says in the plan where the background color came from, and answers it.
QColor notedBackground(const Motifs &motifs, FilePlan &plan);

/// `folder`/`name`, or `name` where there is no folder.
QString below(const QString &folder, const QString &name);

} // namespace lumora
