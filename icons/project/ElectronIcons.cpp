// SPDX-License-Identifier: MIT
#include "ElectronIcons.h"

#include "ProjectSettings.h"
#include "icons/today/AppleSlots.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

// Source: electron.build (icons, configuration), electronforge.io (configuration).
constexpr std::array linuxEdges = {16, 24, 32, 48, 64, 96, 128, 256, 512};
/// The packagers refuse a smaller picture for the Mac and for Windows.
constexpr int smallestMacIcon = 512;
constexpr int smallestWindowsIcon = 256;
constexpr std::array yamlNames = {"electron-builder.yml", "electron-builder.yaml"};
constexpr std::array unreadNames = {
    "electron-builder.json5",
    "electron-builder.toml",
    "electron-builder.js",
    "electron-builder.cjs",
    "electron-builder.mjs",
    "electron-builder.ts",
    "electron-builder.config.js",
    "electron-builder.config.cjs",
    "electron-builder.config.mjs",
    "electron-builder.config.ts",
    "forge.config.js",
    "forge.config.cjs",
    "forge.config.mjs",
    "forge.config.ts",
};

/// The packager's settings, and the file that they come from.
struct Settings
{
    QString file;
    QMap<QString, QString> values; ///< by names such as "mac.icon"
    bool hasUsual = true;          ///< whether icons that are not named are looked for in the usual places
};

/// The settings that can be read; without a file where there are none.
Settings settingsIn(const QString &folder)
{
    const QString package = folder + u"/package.json"_s;
    const QJsonObject manifest = jsonSettings(package);
    if (manifest[u"build"_s].isObject())
        return {package, flatSettings(manifest[u"build"_s].toObject())};
    for (const char *name : yamlNames) {
        const QString file = folder + u'/' + QLatin1StringView(name);
        if (QFileInfo(file).isFile())
            return {file, yamlSettings(settingsFile(file))};
    }
    const QString json = folder + u"/electron-builder.json"_s;
    if (QFileInfo(json).isFile())
        return {json, flatSettings(jsonSettings(json))};
    const QJsonObject forge = manifest[u"config"_s].toObject()[u"forge"_s].toObject();
    // It is the name without the ending, which each system has its own of.
    QString stem = forge[u"packagerConfig"_s].toObject()[u"icon"_s].toString();
    if (stem.endsWith(u".icns") || stem.endsWith(u".ico") || stem.endsWith(u".png"))
        stem.truncate(stem.lastIndexOf(u'.'));
    if (stem.isEmpty())
        return {};
    return {package, {{u"mac.icon"_s, stem + u".icns"_s}, {u"win.icon"_s, stem + u".ico"_s}}, false};
}

class ElectronPlaces
{
public:
    ElectronPlaces(QString folder, Settings settings) : m_folder(std::move(folder)), m_settings(std::move(settings)) {}

    Result<QList<NamedIcon>> icons()
    {
        const QString given = m_settings.values.value(u"directories.buildResources"_s, u"build"_s);
        m_resources = QDir::cleanPath(given);
        if (QDir::isAbsolutePath(m_resources) || m_resources.startsWith(u".."))
            return outside(given);
        const QString all = m_settings.values.value(u"icon"_s);
        const QString mac = m_settings.values.value(u"mac.icon"_s, all);
        const QString windows = m_settings.values.value(u"win.icon"_s, all);
        const QString linux = m_settings.values.value(u"linux.icon"_s, all);
        for (const auto &[named, ending, least] :
             {std::tuple{mac, u".icns"_s, smallestMacIcon}, std::tuple{windows, u".ico"_s, smallestWindowsIcon}}) {
            if (named.isEmpty())
                addUsual(u"icon"_s + ending, 0);
            else if (const Outcome added = addNamed(named, ending, least); !added)
                return added.failure();
        }
        if (!linux.isEmpty()) {
            const Outcome added = addLinuxNamed(linux);
            if (!added)
                return added.failure();
        } else if (m_settings.hasUsual) {
            addLinux(m_resources + u"/icons"_s);
        }
        // What has no icon of its own is made of this one.
        if (m_settings.hasUsual && (mac.isEmpty() || windows.isEmpty() || linux.isEmpty()))
            addUsual(u"icon.png"_s, smallestMacIcon);
        return m_icons;
    }

private:
    Failure outside(const QString &named) const { return {FailureCode::LeadsOutside, m_settings.file, named}; }

    /// The packager looks among its resources first.
    Result<QString> place(const QString &named) const
    {
        const QString path = pathWithin(named);
        if (path.isEmpty())
            return outside(named);
        const QString resource = m_resources + u'/' + path;
        return QFileInfo::exists(m_folder + u'/' + resource) ? resource : path;
    }

    void addUsual(const QString &name, int least)
    {
        const int edge = name.endsWith(u".png") ? storeIconSize : 0;
        m_icons << NamedIcon{IconUse::Icon, m_resources + u'/' + name, edge, least, false};
    }

    Outcome addNamed(const QString &named, const QString &ending, int least)
    {
        // Its name is put together when the app is packed.
        if (named.contains(u'$'))
            return Done{};
        const bool hasEnding = !QFileInfo(named).suffix().isEmpty();
        const Result<QString> path = place(hasEnding ? named : QString(named + ending));
        if (!path)
            return path.failure();
        const auto known = std::find_if(m_icons.begin(), m_icons.end(),
                                        [&path](const NamedIcon &icon) { return icon.path == path.value(); });
        if (known != m_icons.end()) {
            known->least = std::max(known->least.value_or(0), least);
            return Done{};
        }
        const int edge = path.value().endsWith(u".png") ? storeIconSize : 0;
        m_icons << NamedIcon{IconUse::Icon, path.value(), edge, least, true};
        return Done{};
    }

    Outcome addLinuxNamed(const QString &named)
    {
        if (named.contains(u'$') || !QFileInfo(named).suffix().isEmpty())
            return addNamed(named, {}, 0);
        const Result<QString> path = place(named);
        if (!path)
            return path.failure();
        addLinux(path.value());
        return Done{};
    }

    void addLinux(const QString &path)
    {
        for (const int edge : linuxEdges)
            m_icons << NamedIcon{IconUse::Icon, path + u"/%1x%1.png"_s.arg(edge), edge, {}, false};
    }

    QString m_folder;
    Settings m_settings;
    QString m_resources;
    QList<NamedIcon> m_icons;
};

} // namespace

Result<QList<NamedIcon>> electronIcons(const QString &folder)
{
    return ElectronPlaces(folder, settingsIn(folder)).icons();
}

QString unreadElectronSettings(const QString &folder)
{
    if (!settingsIn(folder).file.isEmpty())
        return {};
    const auto *unread = std::find_if(unreadNames.begin(), unreadNames.end(), [&folder](const char *name) {
        return QFileInfo(folder + u'/' + QLatin1StringView(name)).isFile();
    });
    return unread == unreadNames.end() ? QString() : QString::fromLatin1(*unread);
}

} // namespace lumora
