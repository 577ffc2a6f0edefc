// SPDX-License-Identifier: MIT
#include "NamedIcons.h"

#include "foundation/WholeFile.h"
#include "icons/today/AndroidFigures.h"
#include "icons/today/AppleSlots.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QXmlStreamReader>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr qint64 longestConfiguration = 4LL * 1024 * 1024;
constexpr int notificationEdge = 96;
constexpr int faviconEdge = 48;
/// Electron's packagers refuse a smaller picture for the Mac.
constexpr int smallestElectronIcon = 512;

QByteArray configuration(const QString &path)
{
    const Result<QByteArray> bytes = readWholeFile(path, longestConfiguration);
    return bytes ? bytes.value() : QByteArray();
}

QJsonObject jsonOf(const QString &path)
{
    return QJsonDocument::fromJson(configuration(path)).object();
}

/// A path in a configuration, relative to its folder; empty if it leads out of the folder.
QString pathWithin(const QString &named)
{
    const QString path = QDir::cleanPath(named);
    return path.isEmpty() || QDir::isAbsolutePath(path) || path == u"." || path == u".." || path.startsWith(u"../")
               ? QString()
               : path;
}

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
    const QJsonObject expo = jsonOf(folder + u"/app.json"_s)[u"expo"_s].toObject();
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

/// The edge that an icon element of Cordova's configuration states: its width, or what follows from its density.
int statedEdge(const QXmlStreamAttributes &attributes)
{
    const int width = attributes.value(u"width"_s).toInt();
    if (width > 0 && width <= storeIconSize)
        return width;
    const QStringView density = attributes.value(u"density"_s);
    if (density == QLatin1StringView(lowDensity.name))
        return lowDensity.pixels(legacyIconDp);
    for (const DensityBucket &bucket : densityBuckets) {
        if (density == QLatin1StringView(bucket.name))
            return bucket.pixels(legacyIconDp);
    }
    return 0;
}

Result<QList<NamedIcon>> cordovaIcons(const QString &folder)
{
    const QString file = folder + u"/config.xml"_s;
    QXmlStreamReader reader(configuration(file));
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
        jsonOf(folder + u'/' + base + u"tauri.conf.json"_s)[u"bundle"_s].toObject()[u"icon"_s].toArray();
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

Result<QList<NamedIcon>> electronIcons(const QString &folder)
{
    const Result<QString> resources = electronResources(folder);
    if (!resources)
        return resources.failure();
    const QString &base = resources.value();
    QList<NamedIcon> icons{
        {IconUse::Icon, base + u"/icon.png"_s, storeIconSize, smallestElectronIcon, false},
    };
    for (const int edge : {16, 24, 32, 48, 64, 96, 128, 256, 512})
        icons << NamedIcon{IconUse::Icon, base + u"/icons/%1x%1.png"_s.arg(edge), edge, {}, false};
    return icons;
}

/// The paths that the project's icon elements name; a pattern or a variable is not one.
QList<NamedIcon> mauiIconsIn(const QString &file)
{
    QXmlStreamReader reader(configuration(file));
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

Result<QString> electronResources(const QString &folder)
{
    const QString file = folder + u"/package.json"_s;
    const QString given =
        jsonOf(file)[u"build"_s].toObject()[u"directories"_s].toObject()[u"buildResources"_s].toString(u"build"_s);
    const QString path = QDir::cleanPath(given);
    if (QDir::isAbsolutePath(path) || path.startsWith(u".."))
        return Failure{FailureCode::LeadsOutside, file, given};
    return path;
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
