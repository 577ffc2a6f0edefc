// SPDX-License-Identifier: MIT
#include "PackagePage.h"

#include "PackageJson.h"
#include "pictures/png/PngEncoder.h"
#include "validator/rules/Wording.h"

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
        return key == u"verdict" || key == u"kind" ? valueWord(value.toString()) : value.toString();
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
    shown.facts = named(json, {{u"name"_s, worded("HTML_NAME")},
                               {u"version"_s, worded("HTML_VERSION")},
                               {u"platform"_s, worded("HTML_PLATFORM")},
                               {u"minimumOS"_s, worded("HTML_MINIMUM_SYSTEM")},
                               {u"bundleIdentifier"_s, worded("HTML_IDENTIFIER")},
                               {u"build"_s, worded("HTML_BUILD")},
                               {u"localizations"_s, worded("REVIEW_FILES_LANGUAGES")},
                               {u"urlSchemes"_s, worded("HTML_URL_SCHEMES")},
                               {u"facebookAppID"_s, worded("HTML_FACEBOOK")}});
    shown.signature = named(json[u"signature"_s].toObject(), {{u"verdict"_s, worded("REVIEW_SIGNATURE")},
                                                              {u"identifier"_s, worded("HTML_IDENTIFIER")},
                                                              {u"team"_s, worded("REVIEW_TEAM")},
                                                              {u"signer"_s, worded("REVIEW_SIGNER")},
                                                              {u"broken"_s, worded("REVIEW_SIGNATURE_BROKEN")}}) +
                      named(json[u"profile"_s].toObject(), {{u"kind"_s, worded("REVIEW_PROFILE")},
                                                            {u"name"_s, worded("REVIEW_PROFILE_NAME")},
                                                            {u"expires"_s, worded("HTML_EXPIRES")},
                                                            {u"devices"_s, worded("REVIEW_DEVICES")}});
    return shown;
}

} // namespace lumora
