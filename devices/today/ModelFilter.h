// SPDX-License-Identifier: MIT
#pragma once

#include "DeviceModel.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <set>
#include <span>
#include <vector>

namespace lumora
{

/// The capabilities that an app may require in its UIRequiredDeviceCapabilities and that the list knows.
struct ModelCapability
{
    std::string_view key;
    bool (*has)(const DeviceModel &model);
};

std::span<const ModelCapability> modelCapabilities();
const ModelCapability *modelCapability(QStringView key);

/// Features that are not known for every model.
enum class ModelFeature { DynamicIsland, Lidar, UsbC, Cellular5G };
/// Its word on the command line, "dynamic-island", which is also a reason's detail.
/// The chip without the name of its family: "A12" for "A12 Bionic", but "A19 Pro" stays, since the A19 is another.
QString shortChipName(const QString &chip);

QString featureKey(ModelFeature feature);
Having havingOf(const DeviceModel &model, ModelFeature feature);

/// The requirements on a model. An empty filter requires nothing; any member of a set satisfies the set.
struct ModelFilter
{
    /// The model must run some version from the first to the last of these.
    std::optional<OsVersion> iosFrom;
    std::optional<OsVersion> iosTo;
    std::set<DeviceFamily> families;
    /// "A12 Bionic", or as `shortChipName` has it, in any case: "a12". "A19" is not "A19 Pro".
    QStringList chips;
    std::vector<const ModelCapability *> capabilities;
    QStringList screenClasses; ///< keys of `screenClasses()`
    std::set<Biometry> biometries;
    std::set<ModelFeature> features;
    QString otherDevice; ///< the only device of all, by name, which is none of the list: no model matches
    QString search;      ///< words; the name or the identifier must contain each of them
};

/// The reason why a model does not match.
enum class FallsOut {
    EndsBefore,  ///< `detail` is the newest version that it runs
    BeginsAfter, ///< `detail` is the oldest version that it runs
    OtherDevice, ///< `detail` is the device that is none of the list
    OtherFamily, ///< `detail` is its family
    OtherChip,   ///< `detail` is its chip
    Lacks,       ///< `detail` is the capability's key
    OtherScreen, ///< `detail` is its screen class; empty where that is not known
    OtherBiometry,
    LacksFeature, ///< `detail` is the feature's key
    UnknownFeature,
    NotSearched,
};

struct FallsOutReason
{
    FallsOut reason;
    QString detail;

    bool operator==(const FallsOutReason &) const = default;
};

/// All reasons why the model does not match, in the filter's order; empty if it matches.
std::vector<FallsOutReason> reasonsAgainst(const DeviceModel &model, const ModelFilter &filter);

/// "ends at iOS 12.5.8": the reason in English.
QString reasonText(const FallsOutReason &reason);

/// Reads "15..", "..12", "9..12.4" or "15" into the filter; false if the text is no such range.
bool takeIosRange(QStringView text, ModelFilter &filter);

/// The filter for an app with these demands: its oldest version as text, no iPhone, and keys of capabilities, of which
/// those that the list does not know demand nothing.
ModelFilter filterOf(const QString &minimumSystem, bool padOnly, const QStringList &capabilities);

/// The number of models that run the version or a newer one.
int modelsRunning(std::span<const DeviceModel> models, const OsVersion &version);

} // namespace lumora
