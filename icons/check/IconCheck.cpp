// SPDX-License-Identifier: MIT
#include "IconCheck.h"

#include "CheckParts.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int mostEntries = 200'000;
constexpr int deepestFolder = 40;

/// Whether the folder's files are not the project's own. Electron's packagers take their icons from "build", which in
/// other projects holds what was built.
bool isPassedOver(const QFileInfo &folder)
{
    static const QStringList names = {u"node_modules"_s, u"Pods"_s, u"DerivedData"_s};
    const QString name = folder.fileName();
    if (name == u"build") {
        const QDir build(folder.filePath());
        return !build.exists(u"icon.icns"_s) && !build.exists(u"icon.ico"_s);
    }
    return name.startsWith(u'.') || names.contains(name);
}

bool isResources(const QString &folder)
{
    const QStringList adaptive =
        QDir(folder).entryList({u"mipmap-anydpi*"_s, u"drawable-anydpi*"_s}, QDir::Dirs | QDir::NoSymLinks);
    return !adaptive.isEmpty();
}

class Walk
{
public:
    explicit Walk(IconCheck &check) : m_check(check) {}

    void enter(const QString &folder, int depth)
    {
        if (checkFolder(folder, m_check))
            return;
        const QFileInfoList entries =
            QDir(folder).entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::NoSymLinks, QDir::Name);
        m_entries += static_cast<int>(entries.size());
        for (const QFileInfo &entry : entries) {
            if (m_entries > mostEntries || depth > deepestFolder) {
                end(folder);
                return;
            }
            const QString path = folder + u'/' + entry.fileName();
            if (entry.isDir() && !isPassedOver(entry))
                enter(path, depth + 1);
            else if (entry.isFile())
                checkFile(path, m_check);
        }
    }

private:
    void end(const QString &folder)
    {
        if (!m_ended)
            m_check.add(IconRule::WalkEnded, folder);
        m_ended = true;
    }

    IconCheck &m_check;
    int m_entries = 0;
    bool m_ended = false;
};

} // namespace

bool checkFolder(const QString &folder, IconCheck &check)
{
    const QString name = QFileInfo(folder).fileName();
    if (name.endsWith(u".appiconset"))
        checkIconSet(folder, check);
    else if (name.endsWith(u".brandassets"))
        checkBrandAssets(folder, check);
    else if (name.endsWith(u".solidimagestack"))
        checkVisionStack(folder, check);
    else if (name.endsWith(u".icon") && QFileInfo::exists(folder + u"/icon.json"_s))
        checkComposerBundle(folder, check);
    else if (isResources(folder))
        checkAndroidResources(folder, check);
    else
        return false;
    return true;
}

void checkFile(const QString &path, IconCheck &check)
{
    const QString name = QFileInfo(path).fileName();
    if (name.endsWith(u".webmanifest") || name == u"manifest.json")
        checkWebManifest(path, check);
    else if (name.endsWith(u".ico"))
        checkIcoFile(path, check);
    else if (name.endsWith(u".icns"))
        checkIcnsFile(path, check);
    else if (name.endsWith(u"-playstore.png"))
        checkPlayPicture(path, check);
    else if (name.startsWith(u"apple-touch-icon") && name.endsWith(u".png"))
        checkTouchIcon(path, check);
    else if (const std::optional<QSize> theme = hicolorSize(path))
        checkSizedPicture(path, *theme, check);
    else if (const std::optional<QSize> asset = windowsAssetSize(name))
        checkSizedPicture(path, *asset, check);
}

Result<IconCheck> checkIcons(const QString &folder)
{
    const QFileInfo info(folder);
    if (!info.exists())
        return Failure{FailureCode::NotFound, folder, {}};
    if (!info.isDir())
        return Failure{FailureCode::NotAFolder, folder, {}};
    if (!info.isReadable() || !info.isExecutable())
        return Failure{FailureCode::NoPermission, folder, {}};
    IconCheck check;
    const QString path = QDir(folder).absolutePath();
    Walk(check).enter(path, 0);
    checkNamedIcons(path, check);
    check.sort();
    return check;
}

IconCheck checkSets(const QString &folder, const QList<TodaySet> &sets)
{
    IconCheck check;
    for (const TodaySet set : sets) {
        const Result<IconCheck> part = checkIcons(folder + u'/' + QLatin1StringView(infoOf(set).folder));
        if (part)
            check.append(part.value());
    }
    return check;
}

} // namespace lumora
