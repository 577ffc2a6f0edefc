// SPDX-License-Identifier: MIT
// The kinds of project that name their icons in a configuration file.
#include "ProjectPlan.h"

#include "foundation/WholeFile.h"
#include "icons/today/AppleSlots.h"
#include "icons/today/Motifs.h"
#include "icons/today/SetPlans.h"
#include "icons/today/WindowsAssets.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr qint64 longestConfiguration = 4LL * 1024 * 1024;
constexpr int notificationEdge = 96;
constexpr int faviconEdge = 48;

QByteArray configuration(const QString &path)
{
    const Result<QByteArray> bytes = readWholeFile(path, longestConfiguration);
    return bytes ? bytes.value() : QByteArray();
}

/// A path in a configuration, relative to its folder; empty if it leads out of the folder.
QString pathWithin(const QString &named)
{
    const QString path = QDir::cleanPath(named);
    return path.isEmpty() || QDir::isAbsolutePath(path) || path == u"." || path.startsWith(u".."_s) ||
                   !path.endsWith(u".png")
               ? QString()
               : path;
}

} // namespace

Outcome ProjectPlaces::addExpo()
{
    const QString name = u"app.json"_s;
    const QJsonObject expo = QJsonDocument::fromJson(configuration(whole(name))).object()[u"expo"_s].toObject();
    const QJsonObject ios = expo[u"ios"_s].toObject();
    const QJsonObject android = expo[u"android"_s].toObject();
    const QJsonObject adaptive = android[u"adaptiveIcon"_s].toObject();
    const auto add = [this](const QJsonValue &value, const PictureRecipe &recipe) {
        const QString path = pathWithin(value.toString());
        if (!path.isEmpty())
            m_plan.addPicture(at(path), recipe);
    };
    const Result<PictureRecipe> light = iosPicture(m_motifs, Appearance::Light, storeIconSize, m_plan);
    if (!light)
        return light.failure();
    if (expo.contains(u"icon"_s)) {
        add(expo[u"icon"_s], light.value());
    } else {
        m_plan.addPicture(at(u"assets/icon.png"_s), light.value());
        m_plan.linesToAdd << at(name) + u": \"icon\": \"./assets/icon.png\""_s;
    }
    const QJsonValue iosIcon = ios[u"icon"_s];
    add(iosIcon.isObject() ? iosIcon.toObject()[u"light"_s] : iosIcon, light.value());
    if (hasDarkIcon(m_motifs))
        add(iosIcon.toObject()[u"dark"_s], filled(Motif::Dark, storeIconSize));
    add(iosIcon.toObject()[u"tinted"_s], filled(Motif::Tinted, storeIconSize, PictureForm::Opaque));
    if (!iosIcon.isObject())
        m_plan.linesToAdd << at(name) + u": \"ios\": {\"icon\": {\"light\": …, \"dark\": …, \"tinted\": …}}"_s;
    add(android[u"icon"_s], filled(Motif::Icon, storeIconSize));
    add(adaptive[u"foregroundImage"_s], adaptiveLayer(m_motifs, Motif::Foreground, storeIconSize, m_plan));
    if (!m_motifs.sources().background.isNull())
        add(adaptive[u"backgroundImage"_s], filled(Motif::Background, storeIconSize));
    else if (adaptive.contains(u"foregroundImage"_s))
        m_plan.linesToAdd << at(name) + u": \"android\": {\"adaptiveIcon\": {\"backgroundColor\": \"%1\"}}"_s.arg(
                                            notedBackground(m_motifs, m_plan).name().toUpper());
    if (m_motifs.hasMonochrome()) {
        add(adaptive[u"monochromeImage"_s], adaptiveLayer(m_motifs, Motif::Monochrome, storeIconSize, m_plan));
        add(expo[u"notification"_s].toObject()[u"icon"_s], filled(Motif::Monochrome, notificationEdge));
    }
    add(expo[u"web"_s].toObject()[u"favicon"_s], filled(Motif::Icon, faviconEdge));
    return Done{};
}

Outcome ProjectPlaces::addElectron()
{
    const QJsonObject package = QJsonDocument::fromJson(configuration(whole(u"package.json"_s))).object();
    const QString given =
        package[u"build"_s].toObject()[u"directories"_s].toObject()[u"buildResources"_s].toString(u"build"_s);
    const QString folder = QDir::cleanPath(given);
    if (QDir::isAbsolutePath(folder) || folder.startsWith(u".."))
        return Failure{FailureCode::LeadsOutside, whole(u"package.json"_s), given};
    m_plan.files.append(macIconFile(at(folder + u"/icon.icns"_s)));
    m_plan.files.append(
        windowsIcon(at(folder + u"/icon.ico"_s), std::vector(windowsIconSizes.begin(), windowsIconSizes.end())));
    m_plan.addPicture(at(folder + u"/icon.png"_s), filled(Motif::Icon, storeIconSize));
    for (const int edge : {16, 24, 32, 48, 64, 96, 128, 256, 512})
        m_plan.addPicture(at(folder + u"/icons/%1x%1.png"_s.arg(edge)), filled(Motif::Icon, edge));
    return Done{};
}

Outcome ProjectPlaces::addMaui()
{
    const QByteArray svg = m_motifs.sources().icon.svgFile();
    if (svg.isEmpty())
        return Failure{FailureCode::NotReadable, {}, "DETAIL_MAUI_SVG"};
    m_plan.addText(at(u"Resources/AppIcon/appicon.svg"_s), svg);
    if (const QByteArray foreground = m_motifs.sources().foreground.svgFile(); !foreground.isEmpty())
        m_plan.addText(at(u"Resources/AppIcon/appiconfg.svg"_s), foreground);
    const QStringList files = QDir(whole({})).entryList({u"*.csproj"_s}, QDir::Files, QDir::Name);
    for (const QString &file : files) {
        if (!configuration(whole(file)).contains("MauiIcon"))
            m_plan.linesToAdd << at(file) + u": <MauiIcon Include=\"Resources\\AppIcon\\appicon.svg\" />"_s;
    }
    return Done{};
}

Outcome ProjectPlaces::addCordova()
{
    const QString name = u"config.xml"_s;
    QXmlStreamReader reader(configuration(whole(name)));
    QString platform;
    bool any = false;
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::EndElement && reader.name() == u"platform")
            platform.clear();
        if (token != QXmlStreamReader::StartElement)
            continue;
        const QXmlStreamAttributes attributes = reader.attributes();
        if (reader.name() == u"platform")
            platform = attributes.value(u"name"_s).toString();
        const QString path = pathWithin(attributes.value(u"src"_s).toString());
        if (reader.name() != u"icon" || path.isEmpty())
            continue;
        any = true;
        const int edge = attributes.value(u"width"_s).toInt();
        const bool known = edge > 0 && edge <= storeIconSize;
        if (platform == u"ios") {
            const Outcome planned = addOpaque(path, known ? edge : storeIconSize);
            if (!planned)
                return planned;
        } else if (known) {
            m_plan.addPicture(at(path), filled(Motif::Icon, edge));
        } else {
            addSquare(path, filled(Motif::Icon, storeIconSize));
        }
    }
    if (reader.hasError())
        return Failure{FailureCode::NotReadable, whole(name), reader.errorString()};
    if (!any) {
        m_plan.addPicture(at(u"res/icon.png"_s), filled(Motif::Icon, storeIconSize));
        m_plan.linesToAdd << at(name) + u": <icon src=\"res/icon.png\" />"_s;
    }
    return Done{};
}

} // namespace lumora
