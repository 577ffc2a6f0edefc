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

/// The devices of a family's number, or of the name of the platform that an app is built for.
struct DeviceKind
{
    int family;
    QLatin1StringView platform;
    QLatin1StringView name;
};

constexpr DeviceKind deviceKinds[] = {
    {1, {}, QLatin1StringView("iPhone")},
    {2, {}, QLatin1StringView("iPad")},
    {3, QLatin1StringView("AppleTVOS"), QLatin1StringView("Apple TV")},
    {4, QLatin1StringView("WatchOS"), QLatin1StringView("Apple Watch")},
    {6, QLatin1StringView("MacOSX"), QLatin1StringView("Mac")},
    {7, QLatin1StringView("XROS"), QLatin1StringView("Apple Vision")},
};
/// The families for which an app has one name.
constexpr int lastPhoneOrPad = 2;

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
    const QString bundleName = u"CFBundleName"_s;
    const std::pair<QString, QString> names[] = {{appName(), u"CFBundleDisplayName"_s}, {text(bundleName), bundleName}};
    for (const auto &[name, key] : names) {
        const QString shown =
            name.isEmpty() ? localizedText(localizedInfo, key, text(u"CFBundleDevelopmentRegion"_s)) : name;
        if (!shown.isEmpty())
            return shown;
    }
    return text(u"CFBundleExecutable"_s);
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

QString PackageFacts::shownMinimumOS() const
{
    return isMacApp ? text(u"LSMinimumSystemVersion"_s) : appMinimumOSVersion();
}

QString PackageFacts::appPlatform() const
{
    if (!appInfoPlist || isMacApp)
        return {};
    const QVariantList families = arrayOrOne(appInfoPlist->value(u"UIDeviceFamily"_s));
    if (families.size() >= 2)
        return u"iPhone & iPad"_s;
    const int first = families.isEmpty() ? 0 : leadingInteger(shownText(families.first()).value_or(QString()));
    return first == 1 ? u"iPhone"_s : u"iPad"_s;
}

QString PackageFacts::shownPlatform() const
{
    if (!appInfoPlist)
        return {};
    if (isMacApp)
        return u"Mac"_s;
    QList<int> families;
    for (const QVariant &family : arrayOrOne(appInfoPlist->value(u"UIDeviceFamily"_s)))
        families += leadingInteger(shownText(family).value_or(QString()));
    const QVariantList platforms = arrayOrOne(appInfoPlist->value(u"CFBundleSupportedPlatforms"_s));
    QStringList names;
    bool isForOthers = false;
    for (const auto &[family, platform, name] : deviceKinds) {
        const bool isBuiltFor = !platform.isEmpty() && platforms.contains(QString(platform));
        if (!families.contains(family) && !isBuiltFor)
            continue;
        names += name;
        isForOthers = isForOthers || family > lastPhoneOrPad;
    }
    if (!isForOthers)
        return appPlatform();
    const QString last = names.takeLast();
    return names.isEmpty() ? last : QString(names.join(u", "_s) + u" & "_s + last);
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
