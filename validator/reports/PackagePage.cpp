// SPDX-License-Identifier: MIT
#include "PackagePage.h"

#include "pictures/png/PngEncoder.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// The text of a value, lists with commas; of a list of devices, how many there are.
QString valueText(const QString &key, const QJsonValue &value)
{
    if (key == u"devices")
        return value.toArray().isEmpty() ? QString() : QString::number(value.toArray().size());
    if (!value.isArray())
        return value.toString();
    QStringList texts;
    const QJsonArray array = value.toArray();
    for (const QJsonValue each : array)
        texts += each.toString();
    return texts.join(u", "_s);
}

/// The values of an object that are there, by the names that a page gives them.
NamedValues named(const QJsonObject &object, const NamedValues &keys)
{
    NamedValues values;
    for (const auto &[key, name] : keys) {
        if (const QString text = valueText(key, object[key]); !text.isEmpty())
            values.append({name, text});
    }
    return values;
}

} // namespace

ShownPackage shownPackage(const JudgedPackage &judged, const PackageReport &report, const QJsonObject &json)
{
    ShownPackage shown;
    shown.judged = judged;
    // Without an icon, or with one that memory does not suffice for, the page shows none.
    if (const Result<QByteArray> icon = encodePng(report.artwork.appIcon, judged.file))
        shown.iconPng = icon.value();
    shown.facts = named(json, {{u"name"_s, u"Name"_s},
                               {u"version"_s, u"Version"_s},
                               {u"platform"_s, u"Platform"_s},
                               {u"minimumOS"_s, u"Minimum system"_s},
                               {u"bundleIdentifier"_s, u"Identifier"_s},
                               {u"build"_s, u"Build"_s},
                               {u"localizations"_s, u"Languages"_s},
                               {u"urlSchemes"_s, u"URL schemes"_s},
                               {u"facebookAppID"_s, u"Facebook"_s}});
    shown.signature = named(json[u"signature"_s].toObject(), {{u"verdict"_s, u"Signature"_s},
                                                              {u"identifier"_s, u"Identifier"_s},
                                                              {u"team"_s, u"Team"_s},
                                                              {u"signer"_s, u"Signer"_s},
                                                              {u"broken"_s, u"Broken"_s}}) +
                      named(json[u"profile"_s].toObject(), {{u"kind"_s, u"Profile"_s},
                                                            {u"name"_s, u"Name of the profile"_s},
                                                            {u"expires"_s, u"Expires"_s},
                                                            {u"devices"_s, u"Devices"_s}});
    return shown;
}

} // namespace lumora
