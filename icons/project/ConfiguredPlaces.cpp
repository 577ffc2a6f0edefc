// SPDX-License-Identifier: MIT
// The kinds of project that name their icons in a configuration file.
#include "ProjectPlan.h"

#include "NamedIcons.h"
#include "icons/today/AppleSlots.h"
#include "icons/today/Motifs.h"
#include "icons/today/SetPlans.h"
#include "icons/today/WindowsAssets.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace lumora
{

Outcome ProjectPlaces::addNamed(const NamedIcon &icon)
{
    // The other formats are the project's own.
    if (!icon.path.endsWith(u".png") || icon.edge == 0)
        return Done{};
    const QString path = at(icon.path);
    switch (icon.use) {
    case IconUse::Icon:
        if (icon.least == 0)
            addSquare(icon.path, filled(Motif::Icon, icon.edge));
        else
            m_plan.addPicture(path, filled(Motif::Icon, icon.edge));
        break;
    case IconUse::Store:
    case IconUse::Opaque:
        return addOpaque(icon.path, icon.edge);
    case IconUse::Dark:
        if (hasDarkIcon(m_motifs))
            m_plan.addPicture(path, filled(Motif::Dark, icon.edge));
        break;
    case IconUse::Tinted:
        m_plan.addPicture(path, filled(Motif::Tinted, icon.edge, PictureForm::Opaque));
        break;
    case IconUse::Foreground:
        m_plan.addPicture(path, adaptiveLayer(m_motifs, Motif::Foreground, icon.edge, m_plan));
        break;
    case IconUse::Background:
        addBackground(icon);
        break;
    case IconUse::Monochrome:
        if (m_motifs.hasMonochrome())
            m_plan.addPicture(path, adaptiveLayer(m_motifs, Motif::Monochrome, icon.edge, m_plan));
        break;
    case IconUse::Notification:
        if (m_motifs.hasMonochrome())
            m_plan.addPicture(path, filled(Motif::Monochrome, icon.edge));
        break;
    case IconUse::Maskable:
        m_plan.addPicture(path, maskableIcon(m_motifs, icon.edge, m_plan));
        break;
    }
    return Done{};
}

void ProjectPlaces::addBackground(const NamedIcon &icon)
{
    const TodaySources &sources = m_motifs.sources();
    if (sources.background.isNull() && !sources.backgroundColor && has(icon.path)) {
        m_plan.note(Derivation::BackgroundKept, at(icon.path));
        return;
    }
    if (sources.background.isNull())
        (void)notedBackground(m_motifs, m_plan);
    m_plan.addPicture(at(icon.path), filled(Motif::Background, icon.edge));
}

Result<QList<NamedIcon>> ProjectPlaces::addAllNamed()
{
    Result<QList<NamedIcon>> icons = namedIcons(m_project.kind, whole({}));
    if (!icons)
        return icons;
    for (const NamedIcon &icon : icons.value()) {
        const Outcome added = addNamed(icon);
        if (!added)
            return added.failure();
    }
    const QString unread = unreadSettings(m_project.kind, whole({}));
    if (!unread.isEmpty())
        m_plan.note(Derivation::SettingsNotRead, at(unread));
    return icons;
}

Outcome ProjectPlaces::addExpo()
{
    const QString name = expoSettings(whole({}));
    if (name.isEmpty())
        return Failure{FailureCode::NotReadable, whole(unreadSettings(m_project.kind, whole({}))), {"DETAIL_PROGRAM"}};
    const Result<QList<NamedIcon>> icons = addAllNamed();
    if (!icons)
        return icons.failure();
    bool hasAppearances = false;
    bool hasForeground = false;
    bool hasBackground = !m_motifs.sources().background.isNull();
    for (const NamedIcon &icon : icons.value()) {
        hasAppearances = hasAppearances || icon.use == IconUse::Dark || icon.use == IconUse::Tinted;
        hasForeground = hasForeground || icon.use == IconUse::Foreground;
        hasBackground = hasBackground || icon.use == IconUse::Background;
        if (!icon.isNamed)
            m_plan.linesToAdd << at(name) + u": \"icon\": \"./%1\""_s.arg(icon.path);
    }
    if (!hasAppearances)
        m_plan.linesToAdd << at(name) + u": \"ios\": {\"icon\": {\"light\": …, \"dark\": …, \"tinted\": …}}"_s;
    if (hasForeground && !hasBackground)
        m_plan.linesToAdd << at(name) + u": \"android\": {\"adaptiveIcon\": {\"backgroundColor\": \"%1\"}}"_s.arg(
                                            notedBackground(m_motifs, m_plan).name().toUpper());
    return Done{};
}

Outcome ProjectPlaces::addElectron()
{
    const Result<QList<NamedIcon>> icons = namedIcons(m_project.kind, whole({}));
    if (!icons)
        return icons.failure();
    for (const NamedIcon &icon : icons.value()) {
        if (icon.path.endsWith(u".icns"))
            m_plan.files.append(macIconFile(at(icon.path)));
        else if (icon.path.endsWith(u".ico"))
            m_plan.files.append(
                windowsIcon(at(icon.path), std::vector(windowsIconSizes.begin(), windowsIconSizes.end())));
    }
    const Result<QList<NamedIcon>> pictures = addAllNamed();
    return pictures ? Outcome(Done{}) : Outcome(pictures.failure());
}

Outcome ProjectPlaces::addMaui()
{
    const QByteArray svg = m_motifs.sources().icon.svgFile();
    if (svg.isEmpty())
        return Failure{FailureCode::NotReadable, {}, "DETAIL_MAUI_SVG"};
    const QByteArray foreground = m_motifs.sources().foreground.svgFile();
    const Result<QList<NamedIcon>> icons = namedIcons(ProjectKind::Maui, whole({}));
    if (!icons)
        return icons.failure();
    bool foregroundStays = false;
    bool isNamed = true;
    QString written;
    for (const NamedIcon &icon : icons.value()) {
        const bool isForeground = icon.use == IconUse::Foreground;
        if (isForeground && foreground.isEmpty())
            foregroundStays = foregroundStays || icon.isNamed;
        else if (icon.path.endsWith(u".svg"))
            m_plan.addText(at(icon.path), isForeground ? foreground : svg);
        if (!isForeground && icon.path.endsWith(u".svg")) {
            written = icon.path;
            isNamed = icon.isNamed;
        }
    }
    // A foreground of before would cover the new icon.
    if (isNamed && !foregroundStays)
        return Done{};
    const QString line = u": <MauiIcon Include=\"%1\" />"_s.arg(written.replace(u'/', u'\\'));
    const QStringList files = QDir(whole({})).entryList({u"*.csproj"_s}, QDir::Files, QDir::Name);
    for (const QString &file : files)
        m_plan.linesToAdd << at(file) + line;
    return Done{};
}

Outcome ProjectPlaces::addCordova()
{
    const Result<QList<NamedIcon>> icons = addAllNamed();
    if (!icons)
        return icons.failure();
    for (const NamedIcon &icon : icons.value()) {
        if (!icon.isNamed)
            m_plan.linesToAdd << at(u"config.xml"_s) + u": <icon src=\"%1\" />"_s.arg(icon.path);
    }
    return Done{};
}

} // namespace lumora
