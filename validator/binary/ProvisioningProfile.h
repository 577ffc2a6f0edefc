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

/// What a profile lets an app be installed for.
enum class ProfileKind { Development, AdHoc, Enterprise, AppStore };

/// The facts of an `embedded.mobileprovision`. What it does not name is empty.
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
    QStringList devices; ///< their identifiers; empty in kinds that name none
    bool allDevices = false;
    QList<QByteArray> certificates; ///< DER
    QVariantMap entitlements;

    /// The identifier that it is for, with the prefix; may end in "*".
    QString applicationIdentifier() const;
};

/// Nothing when the bytes are no signed message with a property list in it.
std::optional<ProvisioningProfile> readProvisioningProfile(const QByteArray &message);

/// True when a profile that grants the one value lets an app claim the other: the same value, a text that the granted
/// one with a "*" at its end covers, a list of which every item is granted.
bool entitlementIsGranted(const QVariant &granted, const QVariant &claimed);

/// "development", "ad-hoc", "enterprise", "app-store".
QString profileKindName(ProfileKind kind);

} // namespace lumora
