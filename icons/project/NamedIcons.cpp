// SPDX-License-Identifier: MIT
#include "NamedIcons.h"

#include "ElectronIcons.h"
#include "ProjectSettings.h"
#include "icons/today/AndroidFigures.h"
#include "icons/today/AppleSlots.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonObject>
#include <QXmlStreamReader>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int notificationEdge = 96;
constexpr int faviconEdge = 48;
/// The settings of Expo that are no program, in the order in which it looks for them.
constexpr std::array expoNames = {"app.config.json", "app.json"};

/// The icons that a configuration names.
class NamedList
{
public:
    void add(IconUse use, const QString &named, int edge, std::optional<int> least = {})
    {
        const QString path = pathWithin(named);
        if (!path.isEmpty())
            m_icons << NamedIcon{use, path, edge, least, true};
    }
    /// Adds the one that is written if the configuration names none.
    void addUnnamed(const NamedIcon &icon) { m_icons << icon; }
    const QList<NamedIcon> &icons() const { return m_icons; }

private:
    QList<NamedIcon> m_icons;
};

QList<NamedIcon> flutterIcons()
{
    QList<NamedIcon> icons{{IconUse::Icon, u"web/favicon.png"_s, 32, 0, false}};
    for (const int edge : {192, 512}) {
        icons << NamedIcon{IconUse::Icon, u"web/icons/Icon-%1.png"_s.arg(edge), edge, {}, false};
        icons << NamedIcon{IconUse::Maskable, u"web/icons/Icon-maskable-%1.png"_s.arg(edge), edge, {}, false};
    }
    return icons;
}

QList<NamedIcon> expoIcons(const QString &folder)
{
    const QString file = expoSettings(folder);
    // The settings are a program: what it names is not known.
    if (file.isEmpty())
        return {};
    const QJsonObject expo = jsonSettings(folder + u'/' + file)[u"expo"_s].toObject();
    const QJsonValue ios = expo[u"ios"_s].toObject()[u"icon"_s];
    const QJsonObject android = expo[u"android"_s].toObject();
    const QJsonObject adaptive = android[u"adaptiveIcon"_s].toObject();
    const QString light = (ios.isObject() ? ios.toObject()[u"light"_s] : ios).toString();
    const int edge = storeIconSize;
    NamedList list;
    const IconUse use = light.isEmpty() ? IconUse::Store : IconUse::Opaque;
    if (expo.contains(u"icon"_s))
        list.add(use, expo[u"icon"_s].toString(), edge, edge);
    else
        list.addUnnamed({use, u"assets/icon.png"_s, edge, edge, false});
    list.add(IconUse::Store, light, edge, edge);
    list.add(IconUse::Dark, ios.toObject()[u"dark"_s].toString(), edge, edge);
    list.add(IconUse::Tinted, ios.toObject()[u"tinted"_s].toString(), edge, edge);
    list.add(IconUse::Icon, android[u"icon"_s].toString(), edge, 0);
    list.add(IconUse::Foreground, adaptive[u"foregroundImage"_s].toString(), edge, 0);
    list.add(IconUse::Background, adaptive[u"backgroundImage"_s].toString(), edge, 0);
    list.add(IconUse::Monochrome, adaptive[u"monochromeImage"_s].toString(), edge, 0);
    list.add(IconUse::Notification, expo[u"notification"_s].toObject()[u"icon"_s].toString(), notificationEdge, 0);
    list.add(IconUse::Icon, expo[u"web"_s].toObject()[u"favicon"_s].toString(), faviconEdge, 0);
    return list.icons();
}

/// The edge of a picture of so many dp in the density that an icon element of Cordova's
/// settings states; 0 if it states none.
int edgeOfDensity(const QXmlStreamAttributes &attributes, int dp)
{
    const QStringView density = attributes.value(u"density"_s);
    if (density == QLatin1StringView(lowDensity.name))
        return lowDensity.pixels(dp);
    for (const DensityBucket &bucket : densityBuckets) {
        if (density == QLatin1StringView(bucket.name))
            return bucket.pixels(dp);
    }
    return 0;
}

/// The edge that an icon element states: its width, or what follows from its density.
int statedEdge(const QXmlStreamAttributes &attributes)
{
    const int width = attributes.value(u"width"_s).toInt();
    return width > 0 && width <= storeIconSize ? width : edgeOfDensity(attributes, legacyIconDp);
}

/// The layers of an adaptive icon. Each may also be a drawing or, such as "@color/background", a resource.
void addLayers(const QXmlStreamAttributes &attributes, NamedList &list)
{
    const int stated = edgeOfDensity(attributes, adaptiveLayerDp);
    const int edge = stated > 0 ? stated : densityBuckets.back().pixels(adaptiveLayerDp);
    for (const auto &[use, name] :
         {std::pair{IconUse::Foreground, u"foreground"_s}, std::pair{IconUse::Background, u"background"_s},
          std::pair{IconUse::Monochrome, u"monochrome"_s}}) {
        const QString named = attributes.value(name).toString();
        if (!named.startsWith(u'@'))
            list.add(use, named, edge, stated > 0 ? std::nullopt : std::optional(0));
    }
}

Result<QList<NamedIcon>> cordovaIcons(const QString &folder)
{
    const QString file = folder + u"/config.xml"_s;
    QXmlStreamReader reader(settingsFile(file));
    QString platform;
    NamedList list;
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::EndElement && reader.name() == u"platform")
            platform.clear();
        if (token != QXmlStreamReader::StartElement)
            continue;
        const QXmlStreamAttributes attributes = reader.attributes();
        if (reader.name() == u"platform")
            platform = attributes.value(u"name"_s).toString();
        if (reader.name() != u"icon")
            continue;
        const int edge = statedEdge(attributes);
        const bool isStore = edge == 0 || edge == storeIconSize;
        const IconUse use = platform != u"ios" ? IconUse::Icon : isStore ? IconUse::Store : IconUse::Opaque;
        list.add(use, attributes.value(u"src"_s).toString(), edge > 0 ? edge : storeIconSize,
                 edge > 0 ? std::nullopt : std::optional(0));
        if (platform == u"android")
            addLayers(attributes, list);
    }
    if (reader.hasError())
        return Failure{FailureCode::NotReadable, file, reader.errorString()};
    if (list.icons().isEmpty())
        list.addUnnamed({IconUse::Icon, u"res/icon.png"_s, storeIconSize, 0, false});
    return list.icons();
}

QList<NamedIcon> tauriIcons(const QString &folder)
{
    const QString base = u"src-tauri/"_s;
    QList<NamedIcon> icons;
    const auto add = [&](const QString &name, int edge, std::optional<int> least = {}) {
        icons << NamedIcon{IconUse::Icon, base + u"icons/"_s + name, edge, least, false};
    };
    add(u"32x32.png"_s, 32);
    add(u"128x128.png"_s, 128);
    add(u"128x128@2x.png"_s, 256);
    add(u"icon.png"_s, 512, 0);
    for (const int edge : {30, 44, 71, 89, 107, 142, 150, 284, 310})
        add(u"Square%1x%1Logo.png"_s.arg(edge), edge);
    add(u"StoreLogo.png"_s, 50);
    const QJsonArray bundled =
        jsonSettings(folder + u'/' + base + u"tauri.conf.json"_s)[u"bundle"_s].toObject()[u"icon"_s].toArray();
    for (const auto &value : bundled) {
        const QString named = pathWithin(value.toString());
        if (named.isEmpty())
            continue;
        const auto known =
            std::find_if(icons.begin(), icons.end(), [&](const NamedIcon &icon) { return icon.path == base + named; });
        if (known != icons.end())
            known->isNamed = true;
        else
            icons << NamedIcon{IconUse::Icon, base + named, 0, 0, true};
    }
    return icons;
}

/// The paths that the project's icon elements name; a pattern or a variable is not one.
QList<NamedIcon> mauiIconsIn(const QString &file)
{
    QXmlStreamReader reader(settingsFile(file));
    NamedList list;
    const auto add = [&list](IconUse use, QString named) {
        named.replace(u'\\', u'/');
        if (!named.isEmpty() && !named.contains(u'*') && !named.contains(u'$') && !named.contains(u';'))
            list.add(use, named, 0, 0);
    };
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement || reader.name() != u"MauiIcon")
            continue;
        add(IconUse::Icon, reader.attributes().value(u"Include"_s).toString());
        add(IconUse::Foreground, reader.attributes().value(u"ForegroundFile"_s).toString());
    }
    return list.icons();
}

QList<NamedIcon> mauiIcons(const QString &folder)
{
    QList<NamedIcon> icons;
    const QStringList files = QDir(folder).entryList({u"*.csproj"_s}, QDir::Files, QDir::Name);
    for (const QString &file : files)
        icons += mauiIconsIn(folder + u'/' + file);
    const bool isDrawn = std::any_of(icons.begin(), icons.end(), [](const NamedIcon &icon) {
        return icon.use == IconUse::Icon && icon.path.endsWith(u".svg");
    });
    if (icons.isEmpty())
        icons << NamedIcon{IconUse::Foreground, u"Resources/AppIcon/appiconfg.svg"_s, 0, 0, false};
    if (!isDrawn)
        icons << NamedIcon{IconUse::Icon, u"Resources/AppIcon/appicon.svg"_s, 0, 0, false};
    return icons;
}

} // namespace

QString expoSettings(const QString &folder)
{
    for (const char *name : expoNames) {
        const QString file = QString::fromLatin1(name);
        if (jsonSettings(folder + u'/' + file)[u"expo"_s].isObject())
            return file;
    }
    return {};
}

QString unreadSettings(ProjectKind kind, const QString &folder)
{
    if (kind == ProjectKind::Electron)
        return unreadElectronSettings(folder);
    if (kind != ProjectKind::Expo)
        return {};
    const QStringList programs = QDir(folder).entryList(
        {u"app.config.js"_s, u"app.config.cjs"_s, u"app.config.mjs"_s, u"app.config.ts"_s}, QDir::Files, QDir::Name);
    return programs.value(0);
}

Result<QList<NamedIcon>> namedIcons(ProjectKind kind, const QString &folder)
{
    switch (kind) {
    case ProjectKind::Flutter:
        return flutterIcons();
    case ProjectKind::Cordova:
        return cordovaIcons(folder);
    case ProjectKind::Expo:
        return expoIcons(folder);
    case ProjectKind::Tauri:
        return tauriIcons(folder);
    case ProjectKind::Electron:
        return electronIcons(folder);
    case ProjectKind::Maui:
        return mauiIcons(folder);
    case ProjectKind::Capacitor:
    case ProjectKind::ReactNative:
    case ProjectKind::Xcode:
    case ProjectKind::Gradle:
        break;
    }
    return QList<NamedIcon>();
}

} // namespace lumora
