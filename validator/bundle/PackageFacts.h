// SPDX-License-Identifier: MIT
#pragma once

#include "LocalizedInfo.h"

#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <optional>

namespace lumora
{

/// The device families an app runs on.
enum class PlatformType : int {
    None = -1, ///< nothing is known of the app
    Phone = 0,
    Pad = 1,
    Universal = 2,
};

/// The facts of an app package. If the property list has an unexpected kind of value, numbers and booleans (1 or 0) are
/// shown as text, and other kinds are not shown.
struct PackageFacts
{
    QString ipaPath;
    /// The path of the bundle inside the extracted package: "Documents/app/Payload/" and the bundle's name. Ends in the
    /// slash when there is no bundle.
    QString appContentFolderPath;
    std::optional<QVariantMap> appInfoPlist; ///< empty when there is no readable one
    LocalizedInfo localizedInfo;             ///< what the app's languages put in the place of the list's values
    QStringList appLocalizations;            ///< English names, in the order of the folders' names
    QStringList appImages;                   ///< file names, sorted
    /// `std::nullopt` when it was never received, empty when there is no readable profile.
    std::optional<QString> provisioningProfile;
    bool hasApp = false;   ///< there is a bundle, whatever its contents
    bool isMacApp = false; ///< the list is that of an app for the Mac, in its folder "Contents"

    QString appName() const;
    /// The name under which the app is seen: `appName()`, else the bundle's name, each else as its languages have it,
    /// else that of its program.
    QString shownName() const;
    QString appVersion() const;
    QString appBundleIdentifier() const;
    QString appMinimumOSVersion() const;
    /// `appMinimumOSVersion()`; of an app for the Mac, the version of its system.
    QString shownMinimumOS() const;
    /// Empty when the list has no such text or number.
    std::optional<QString> appFacebookID() const;
    /// "iPhone", "iPad" or "iPhone & iPad"; empty without a property list and for an app for the Mac. A list without a
    /// family is that of an iPad app. A family without an array counts as an array of one.
    QString appPlatform() const;
    /// The devices that the app is for, by name: `appPlatform()`, but of an app for other devices their own names, as
    /// in "Apple TV" or "iPhone, iPad & Apple Vision".
    QString shownPlatform() const;
    PlatformType appPlatformType() const;
    /// The schemes of the first URL type; empty when there is no URL type or it has no schemes. A scheme without an
    /// array counts as an array of one.
    std::optional<QStringList> appURLSchemes() const;

    /// The minimum system version's leading number; 0 if there is none.
    double minimumOSNumber() const;

private:
    QString text(const QString &key) const;
};

} // namespace lumora
