// SPDX-License-Identifier: MIT
#include "CheckParts.h"
#include "icons/today/ContentExtent.h"
#include "icons/today/WebFigures.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr double safeZoneTolerance = 0.01;

/// The file at an address in a manifest; empty for an address on another site. A path from the site's root is taken as
/// a path from the manifest's folder, where such sites keep their files.
QString fileOf(const QString &folder, const QString &source)
{
    const QUrl address(source);
    if (!address.scheme().isEmpty() || !address.host().isEmpty())
        return {};
    QString path = address.path();
    while (path.startsWith(u'/'))
        path.remove(0, 1);
    return QDir::cleanPath(folder + u'/' + path);
}

void checkIcon(const QJsonObject &icon, const QString &manifest, IconCheck &check)
{
    const QString folder = QFileInfo(manifest).path();
    const QString source = icon[u"src"_s].toString();
    const QString path = fileOf(folder, source);
    const QStringList purposes = icon[u"purpose"_s].toString().split(u' ', Qt::SkipEmptyParts);
    const bool maskable = purposes.contains(u"maskable"_s);
    if (maskable && purposes.contains(u"any"_s))
        check.add(IconRule::MaskablePurpose, manifest, source);
    if (path.isEmpty())
        return;
    if (!path.startsWith(folder + u'/')) {
        check.add(IconRule::FileOutside, manifest, source);
        return;
    }
    if (source.endsWith(u".svg", Qt::CaseInsensitive)) {
        if (!QFile::exists(path))
            check.add(IconRule::FileMissing, path);
        return;
    }
    SlotDemands demands;
    const QStringList sizes = icon[u"sizes"_s].toString().toLower().split(u' ', Qt::SkipEmptyParts);
    if (sizes.size() == 1 && sizes.first().contains(u'x') && !source.endsWith(u".ico"))
        demands.size = QSize(sizes.first().section(u'x', 0, 0).toInt(), sizes.first().section(u'x', 1).toInt());
    demands.transparency = maskable ? Transparency::Lost : Transparency::Shown;
    if (source.endsWith(u".ico")) {
        if (!QFile::exists(path))
            check.add(IconRule::FileMissing, path);
        return;
    }
    const std::optional<PictureFacts> facts = checkSlot(path, demands, check);
    if (!facts || !maskable)
        return;
    const double diameter = contentDiameter(facts->pixels());
    if (diameter > maskableSafePercent / 100.0 + safeZoneTolerance)
        check.add(IconRule::OutsideSafeZone, path,
                  FailureDetail("DETAIL_OF_PERCENT", {{"[FOUND]", QString::number(qRound(diameter * 100))},
                                                      {"[LIMIT]", QString::number(maskableSafePercent)}}));
}

} // namespace

void checkWebManifest(const QString &file, IconCheck &check)
{
    const std::optional<QJsonObject> manifest = readJson(file);
    if (!manifest) {
        // Other tools also write files called manifest.json, and some of them are not JSON.
        if (file.endsWith(u".webmanifest")) {
            check.checked << file;
            check.add(IconRule::ContentsUnreadable, file);
        }
        return;
    }
    const QJsonArray icons = (*manifest)[u"icons"_s].toArray();
    if (icons.isEmpty())
        return;
    check.checked << file;
    for (const auto &icon : icons)
        checkIcon(icon.toObject(), file, check);
}

void checkTouchIcon(const QString &file, IconCheck &check)
{
    check.checked << file;
    checkSlot(file, {QSize(), Transparency::Lost}, check);
}

} // namespace lumora
