// SPDX-License-Identifier: MIT
#include "ProvisioningProfile.h"

#include "validator/bundle/ProfileDecoder.h"
#include "validator/bundle/PropertyList.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

QStringList textsOf(const QVariant &value)
{
    QStringList texts;
    for (const QVariant &item : value.toList()) {
        if (item.typeId() == QMetaType::QString)
            texts += item.toString();
    }
    return texts;
}

QString textOf(const QVariantMap &list, const QString &key)
{
    const QVariant value = list.value(key);
    return value.typeId() == QMetaType::QString ? value.toString() : QString();
}

ProfileKind kindOf(const QVariantMap &list, const QVariantMap &entitlements)
{
    if (list.value(u"ProvisionsAllDevices"_s).toBool())
        return ProfileKind::Enterprise;
    if (entitlements.value(u"get-task-allow"_s).toBool())
        return ProfileKind::Development;
    return list.contains(u"ProvisionedDevices"_s) ? ProfileKind::AdHoc : ProfileKind::AppStore;
}

bool isText(const QVariant &value)
{
    return value.typeId() == QMetaType::QString;
}

bool coversText(const QString &granted, const QString &claimed)
{
    return granted.endsWith(u'*') ? claimed.startsWith(QStringView(granted).chopped(1)) : granted == claimed;
}

} // namespace

QString ProvisioningProfile::applicationIdentifier() const
{
    const QString phone = textOf(entitlements, u"application-identifier"_s);
    return phone.isEmpty() ? textOf(entitlements, u"com.apple.application-identifier"_s) : phone;
}

std::optional<ProvisioningProfile> readProvisioningProfile(const QByteArray &message)
{
    const auto list = propertyListDictionary(signedMessageContent(message));
    if (!list)
        return std::nullopt;
    ProvisioningProfile profile;
    profile.name = textOf(*list, u"Name"_s);
    profile.uuid = textOf(*list, u"UUID"_s);
    profile.teamIdentifier = textsOf(list->value(u"TeamIdentifier"_s)).value(0);
    profile.teamName = textOf(*list, u"TeamName"_s);
    profile.prefixes = textsOf(list->value(u"ApplicationIdentifierPrefix"_s));
    profile.platforms = textsOf(list->value(u"Platform"_s));
    profile.created = list->value(u"CreationDate"_s).toDateTime();
    profile.expires = list->value(u"ExpirationDate"_s).toDateTime();
    profile.devices = textsOf(list->value(u"ProvisionedDevices"_s));
    profile.allDevices = list->value(u"ProvisionsAllDevices"_s).toBool();
    profile.entitlements = list->value(u"Entitlements"_s).toMap();
    for (const QVariant &certificate : list->value(u"DeveloperCertificates"_s).toList())
        profile.certificates += certificate.toByteArray();
    profile.kind = kindOf(*list, profile.entitlements);
    return profile;
}

bool entitlementIsGranted(const QVariant &granted, const QVariant &claimed)
{
    if (granted == claimed)
        return true;
    if (claimed.typeId() == QMetaType::QVariantList) {
        const QVariantList items = claimed.toList();
        return std::ranges::all_of(items, [&](const QVariant &item) { return entitlementIsGranted(granted, item); });
    }
    if (granted.typeId() == QMetaType::QVariantList) {
        const QVariantList items = granted.toList();
        return std::ranges::any_of(items, [&](const QVariant &item) { return entitlementIsGranted(item, claimed); });
    }
    return isText(granted) && isText(claimed) && coversText(granted.toString(), claimed.toString());
}

QString profileKindName(ProfileKind kind)
{
    switch (kind) {
    case ProfileKind::Development:
        return u"development"_s;
    case ProfileKind::AdHoc:
        return u"ad-hoc"_s;
    case ProfileKind::Enterprise:
        return u"enterprise"_s;
    case ProfileKind::AppStore:
        return u"app-store"_s;
    }
    return {};
}

} // namespace lumora
