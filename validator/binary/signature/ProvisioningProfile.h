// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <optional>

namespace lumora
{

/// The kind of distribution that a profile allows.
enum class ProfileKind { Development, AdHoc, Enterprise, AppStore };

/// The facts of an `embedded.mobileprovision`. Missing facts are empty.
struct ProvisioningProfile
{
    ProfileKind kind = ProfileKind::Development;
    QString name;
    QString uuid;
    QString teamIdentifier;
    QString teamName;
    QStringList prefixes; ///< of application identifiers
    QStringList platforms;
    QDateTime created; ///< UTC
    QDateTime expires;
    QStringList devices; ///< their identifiers; empty in kinds without a list of devices
    bool allDevices = false;
    QList<QByteArray> certificates; ///< DER
    QVariantMap entitlements;

    /// The app identifier, with the prefix; may end in "*".
    QString applicationIdentifier() const;
};

/// Empty when the bytes are not a signed message with a property list.
std::optional<ProvisioningProfile> readProvisioningProfile(const QByteArray &message);

/// True when a profile with the granted value allows an app to claim the other: the same value, a text that matches a
/// granted one with a "*" at its end, or a list whose items are all granted.
bool entitlementIsGranted(const QVariant &granted, const QVariant &claimed);

/// "development", "ad-hoc", "enterprise", "app-store".
QString profileKindName(ProfileKind kind);

} // namespace lumora
