// SPDX-License-Identifier: MIT
#pragma once

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

/// What was found in an app package. Where the property list holds another kind of value than expected: numbers and
/// booleans (1 or 0) are shown as text, every other kind as nothing at all.
struct PackageFacts
{
    QString ipaPath;
    /// Of the bundle inside the extracted package: "Documents/app/Payload/" and the bundle's name. Ends in the slash
    /// when there is no bundle.
    QString appContentFolderPath;
    std::optional<QVariantMap> appInfoPlist; ///< nothing when there is none that can be read
    QStringList appLocalizations;            ///< English names, in the order of the folders' names
    QStringList appImages;                   ///< file names, sorted
    /// Nothing when it was never received, empty when there is no readable profile.
    std::optional<QString> provisioningProfile;

    QString appName() const;
    QString appVersion() const;
    QString appBundleIdentifier() const;
    QString appMinimumOSVersion() const;
    /// Nothing when the list has no such text or number.
    std::optional<QString> appFacebookID() const;
    /// "iPhone", "iPad" or "iPhone & iPad"; without any property list empty. A list that names no family is an iPad
    /// app's. A family that stands alone instead of in an array counts as an array of one.
    QString appPlatform() const;
    PlatformType appPlatformType() const;
    /// Of the first URL type only; nothing when there is no URL type or it has no schemes. One that stands alone
    /// instead of in an array counts as an array of one.
    std::optional<QStringList> appURLSchemes() const;

    /// The minimum system version's leading number, 0 without one.
    double minimumOSNumber() const;

private:
    QString text(const QString &key) const;
};

} // namespace lumora
