// SPDX-License-Identifier: MIT
#include "AndroidModule.h"

#include "foundation/WholeFile.h"
#include "icons/today/AndroidFigures.h"
#include "icons/today/Motifs.h"

#include <QDir>
#include <QRegularExpression>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr qint64 longestXml = 4LL * 1024 * 1024;
constexpr auto androidSpace = "http://schemas.android.com/apk/res/android"_L1;

/// The attributes that name the icon in a manifest.
struct ManifestIcons
{
    bool found = false; ///< the manifest has an application element
    QString icon;       ///< "@mipmap/ic_launcher", empty if none is named
    QString round;
};

ManifestIcons readManifest(const QString &path)
{
    ManifestIcons icons;
    const Result<QByteArray> bytes = readWholeFile(path, longestXml);
    if (!bytes)
        return icons;
    QXmlStreamReader reader(bytes.value());
    while (!reader.atEnd() && !icons.found) {
        if (reader.readNext() != QXmlStreamReader::StartElement || reader.name() != u"application")
            continue;
        icons.found = true;
        icons.icon = reader.attributes().value(QString(androidSpace), u"icon"_s).toString();
        icons.round = reader.attributes().value(QString(androidSpace), u"roundIcon"_s).toString();
    }
    return icons;
}

/// Splits a reference into type and name. False if the type is not one for icons, or for a placeholder.
bool takeReference(const QString &reference, QString &type, QString &name)
{
    const QString kind = reference.section(u'/', 0, 0);
    if ((kind != u"@mipmap" && kind != u"@drawable") || reference.count(u'/') != 1)
        return false;
    type = kind.sliced(1);
    name = reference.section(u'/', 1);
    return !name.isEmpty();
}

/// Whether a file that we do not write defines a color with this name.
bool isColorTaken(const QString &resources, const QString &name)
{
    const QByteArray wanted = "name=\"" + name.toUtf8() + '"';
    const QDir folder(resources);
    const QStringList values = folder.entryList({u"values*"_s}, QDir::Dirs);
    for (const QString &value : values) {
        const QStringList files = QDir(folder.filePath(value)).entryList({u"*.xml"_s}, QDir::Files);
        for (const QString &file : files) {
            if (file == name + u".xml"_s)
                continue;
            const Result<QByteArray> bytes = readWholeFile(folder.filePath(value) + u'/' + file, longestXml);
            if (bytes && bytes.value().contains(wanted))
                return true;
        }
    }
    return false;
}

/// A resource has one file in each folder, in any format.
void removeOtherFormats(const QString &root, FilePlan &plan, qsizetype firstFile)
{
    for (qsizetype index = firstFile; index < plan.files.size(); ++index) {
        const QString path = plan.files[index].path;
        if (!path.endsWith(u".png") && !path.endsWith(u".xml"))
            continue;
        const QFileInfo info(root + u'/' + path);
        if (info.dir().dirName().startsWith(u"values"))
            continue;
        const QString stem = info.completeBaseName();
        const QStringList others = info.dir().entryList({stem + u".*"_s}, QDir::Files | QDir::Hidden);
        for (const QString &other : others) {
            if (other != info.fileName() && !other.endsWith(u".9.png"))
                plan.filesToRemove << path.first(path.lastIndexOf(u'/') + 1) + other;
        }
    }
}

/// Without a monochrome layer, the pictures of an earlier one are of no use any more.
void removeMonochrome(const QString &root, const QString &sourceSet, const AndroidNames &names, FilePlan &plan)
{
    for (const DensityBucket &bucket : densityBuckets) {
        const QString path =
            sourceSet + u"/res/%1-%2/%3_monochrome.png"_s.arg(names.type, QLatin1StringView(bucket.name), names.icon);
        if (QFileInfo::exists(root + u'/' + path))
            plan.filesToRemove << path;
    }
}

} // namespace

bool hasFlavor(const QString &sources, const QString &flavor)
{
    if (flavor.contains(u'/') || flavor.startsWith(u'.'))
        return false;
    if (QFileInfo(sources + u'/' + flavor).isDir())
        return true;
    const QRegularExpression word(u"\\b"_s + QRegularExpression::escape(flavor) + u"\\b"_s);
    for (const char *name : {"build.gradle", "build.gradle.kts"}) {
        const Result<QByteArray> file = readWholeFile(sources + u"/../"_s + QLatin1StringView(name), longestXml);
        const QString text = file ? QString::fromUtf8(file.value()) : QString();
        const qsizetype flavors = text.indexOf(u"productFlavors");
        if (flavors >= 0 && text.indexOf(word, flavors) >= 0)
            return true;
    }
    return false;
}

Outcome planAndroidModule(const QString &root, const QString &sources, const QString &flavor, StorePicture store,
                          const Motifs &motifs, FilePlan &plan)
{
    const QString sourceSet = sources + u'/' + (flavor.isEmpty() ? u"main"_s : flavor);
    QString manifest = sources + u"/main/AndroidManifest.xml"_s;
    AndroidNames names;
    names.notification = false;
    names.playStore = store == StorePicture::Kept;
    names.round.clear();
    const ManifestIcons icons = readManifest(root + u'/' + manifest);
    if (icons.icon.isEmpty())
        plan.linesToAdd << manifest + u": android:icon=\"@mipmap/ic_launcher\""_s;
    else if (!takeReference(icons.icon, names.type, names.icon))
        return Failure{FailureCode::AmbiguousProject, manifest, {"DETAIL_MANIFEST_ICON", {{"[NAME]", icons.icon}}}};
    QString roundType;
    if (!icons.round.isEmpty() && icons.round != icons.icon && takeReference(icons.round, roundType, names.round) &&
        roundType != names.type)
        names.round.clear();
    const QString resources = root + u'/' + sourceSet + u"/res"_s;
    names.backgroundColor = names.icon + u"_background"_s;
    if (isColorTaken(resources, names.backgroundColor))
        names.backgroundColor = names.icon + u"_ground"_s;
    const qsizetype firstFile = plan.files.size();
    const Outcome planned = planAdaptive(motifs, names, sourceSet, plan);
    if (planned)
        removeOtherFormats(root, plan, firstFile);
    if (planned && !motifs.hasMonochrome())
        removeMonochrome(root, sourceSet, names, plan);
    return planned;
}

} // namespace lumora
