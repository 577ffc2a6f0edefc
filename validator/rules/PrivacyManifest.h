// SPDX-License-Identifier: MIT
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariantMap>

namespace lumora
{

/// The facts of a `PrivacyInfo.xcprivacy`.
struct PrivacyManifest
{
    bool tracks = false;
    QStringList trackingDomains;
    qsizetype collectedDataTypes = 0;
    QMap<QString, QStringList> reasons; ///< by category, without "NSPrivacyAccessedAPICategory"
    QStringList faults;                 ///< the faults of its form, in plain words
};

PrivacyManifest readPrivacyManifest(const QVariantMap &list);

/// A category whose use must be declared with a reason.
struct RequiredReason
{
    const char *category;
    const char *symbols;   ///< imported ones, a space between two
    const char *selectors; ///< of messages
    const char *reasons;   ///< those that may be declared
};
const QList<RequiredReason> &requiredReasons();

/// Software kits that must bring a manifest of their own.
bool isListedKit(const QString &name);

} // namespace lumora
