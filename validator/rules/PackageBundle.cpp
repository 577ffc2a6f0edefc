// SPDX-License-Identifier: MIT
#include "PackageContents.h"

using namespace Qt::StringLiterals;

namespace lumora
{

QString PackageBundle::profilePath() const
{
    return layout.root + (layout.root == path ? u"/embedded.mobileprovision"_s : u"/embedded.provisionprofile"_s);
}

QString PackageBundle::privacyPath() const
{
    return layout.resources + u"/PrivacyInfo.xcprivacy";
}

QString PackageBundle::localizedPath(const QString &language) const
{
    return layout.resources + u'/' + language + u".lproj/" + localizedInfoFile;
}

QString PackageBundle::text(const QString &key) const
{
    const QVariant value = info ? info->value(key) : QVariant();
    switch (value.typeId()) {
    case QMetaType::QString:
    case QMetaType::LongLong:
    case QMetaType::Double:
        return value.toString();
    default:
        return {};
    }
}

QString PackageBundle::shownText(const QString &key) const
{
    const QString own = text(key);
    return own.trimmed().isEmpty() ? localizedText(localized, key, text(u"CFBundleDevelopmentRegion"_s)) : own;
}

} // namespace lumora
