// SPDX-License-Identifier: MIT
#include "PackageFacts.h"

#include "foundation/LeadingInteger.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// Empty for a kind of value that is not shown.
std::optional<QString> shownText(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::QString:
        return value.toString();
    case QMetaType::LongLong:
        return QString::number(value.toLongLong());
    case QMetaType::Double:
        return QString::number(value.toDouble(), 'g', 15);
    case QMetaType::Bool:
        return value.toBool() ? u"1"_s : u"0"_s;
    default:
        return std::nullopt;
    }
}

QVariantList arrayOrOne(const QVariant &value)
{
    if (value.typeId() == QMetaType::QVariantList)
        return value.toList();
    return shownText(value) ? QVariantList{value} : QVariantList();
}

} // namespace

QString PackageFacts::text(const QString &key) const
{
    return appInfoPlist ? shownText(appInfoPlist->value(key)).value_or(QString()) : QString();
}

QString PackageFacts::appName() const
{
    return text(u"CFBundleDisplayName"_s);
}

QString PackageFacts::shownName() const
{
    if (const QString name = appName(); !name.isEmpty())
        return name;
    const QString name = text(u"CFBundleName"_s);
    return name.isEmpty() ? text(u"CFBundleExecutable"_s) : name;
}

QString PackageFacts::appVersion() const
{
    return text(u"CFBundleVersion"_s);
}

QString PackageFacts::appBundleIdentifier() const
{
    return text(u"CFBundleIdentifier"_s);
}

QString PackageFacts::appMinimumOSVersion() const
{
    return text(u"MinimumOSVersion"_s);
}

std::optional<QString> PackageFacts::appFacebookID() const
{
    return appInfoPlist ? shownText(appInfoPlist->value(u"FacebookAppID"_s)) : std::nullopt;
}

QString PackageFacts::appPlatform() const
{
    if (!appInfoPlist)
        return {};
    const QVariantList families = arrayOrOne(appInfoPlist->value(u"UIDeviceFamily"_s));
    if (families.size() >= 2)
        return u"iPhone & iPad"_s;
    const int first = families.isEmpty() ? 0 : leadingInteger(shownText(families.first()).value_or(QString()));
    return first == 1 ? u"iPhone"_s : u"iPad"_s;
}

PlatformType PackageFacts::appPlatformType() const
{
    const QString platform = appPlatform();
    if (platform == u"iPhone")
        return PlatformType::Phone;
    if (platform == u"iPad")
        return PlatformType::Pad;
    return platform == u"iPhone & iPad" ? PlatformType::Universal : PlatformType::None;
}

std::optional<QStringList> PackageFacts::appURLSchemes() const
{
    const QVariantList types = appInfoPlist ? appInfoPlist->value(u"CFBundleURLTypes"_s).toList() : QVariantList();
    if (types.isEmpty())
        return std::nullopt;
    const QVariantMap type = types.first().toMap();
    if (!type.contains(u"CFBundleURLSchemes"_s))
        return std::nullopt;
    QStringList schemes;
    for (const QVariant &scheme : arrayOrOne(type.value(u"CFBundleURLSchemes"_s))) {
        if (const auto shown = shownText(scheme))
            schemes += *shown;
    }
    return schemes;
}

double PackageFacts::minimumOSNumber() const
{
    static const QRegularExpression leadingNumber(u"^\\s*([0-9]+(?:\\.[0-9]+)?)"_s);
    return leadingNumber.match(appMinimumOSVersion()).captured(1).toDouble();
}

} // namespace lumora
