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

/// What an app may require in its UIRequiredDeviceCapabilities and the list can tell.
struct ModelCapability
{
    std::string_view key;
    bool (*has)(const DeviceModel &model);
};

std::span<const ModelCapability> modelCapabilities();
const ModelCapability *modelCapability(QStringView key);

/// What a model has that is not known of every model.
enum class ModelFeature { DynamicIsland, Lidar, UsbC, Cellular5G };
Having havingOf(const DeviceModel &model, ModelFeature feature);

/// What is asked of a model. Empty, it asks for nothing; each set is met by any of its members.
struct ModelFilter
{
    /// The model has to run some version from the first to the last of these.
    std::optional<OsVersion> iosFrom;
    std::optional<OsVersion> iosTo;
    std::set<DeviceFamily> families;
    QStringList chips; ///< "A12 Bionic", or what it begins with up to a space: "a12"
    std::vector<const ModelCapability *> capabilities;
    QStringList screenClasses; ///< keys of `screenClasses()`
    std::set<Biometry> biometries;
    std::set<ModelFeature> features;
    QString search; ///< words, each of which is in the name or the identifier
};

/// Why a model falls out.
enum class FallsOut {
    EndsBefore,  ///< `detail` is the newest version that it runs
    BeginsAfter, ///< `detail` is the oldest version that it runs
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

/// Every reason why the model falls out, in the filter's order; none where it fits.
std::vector<FallsOutReason> reasonsAgainst(const DeviceModel &model, const ModelFilter &filter);

/// "ends at iOS 12.5.8": the reason in English.
QString reasonText(const FallsOutReason &reason);

/// Reads "15..", "..12", "9..12.4" or "15" into the filter; false where it is no such range.
bool takeIosRange(QStringView text, ModelFilter &filter);

/// How many of the models run the version or a newer one.
int modelsRunning(std::span<const DeviceModel> models, const OsVersion &version);

} // namespace lumora
