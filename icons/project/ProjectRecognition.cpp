// SPDX-License-Identifier: MIT
#include "ProjectRecognition.h"

#include "NamedIcons.h"
#include "foundation/WholeFile.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QXmlStreamReader>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr qint64 longestMark = 4LL * 1024 * 1024;
constexpr int levelsBelow = 2;
constexpr int mostFolders = 500;

/// A folder that is searched for marks.
class Place
{
public:
    explicit Place(const QString &path) : m_folder(path) {}

    bool hasMark(ProjectKind kind) const
    {
        switch (kind) {
        case ProjectKind::Flutter:
            return hasLine(u"pubspec.yaml"_s, "flutter:");
        case ProjectKind::Capacitor:
            return has(u"capacitor.config.ts"_s) || has(u"capacitor.config.js"_s) || has(u"capacitor.config.json"_s);
        case ProjectKind::Cordova:
            return hasWidget();
        case ProjectKind::ReactNative:
            return dependsOn(u"react-native"_s) && (hasFolder(u"ios"_s) || hasFolder(u"android"_s));
        case ProjectKind::Expo:
            return !expoSettings(m_folder.path()).isEmpty() || isExpoProgram();
        case ProjectKind::Tauri:
            return has(u"src-tauri/tauri.conf.json"_s);
        case ProjectKind::Electron:
            return dependsOn(u"electron"_s);
        case ProjectKind::Maui:
            return hasMaui();
        case ProjectKind::Xcode:
            return !m_folder.entryList({u"*.xcodeproj"_s}, QDir::Dirs).isEmpty();
        case ProjectKind::Gradle:
            return has(u"settings.gradle"_s) || has(u"settings.gradle.kts"_s);
        }
        return false;
    }

private:
    bool has(const QString &name) const { return QFileInfo(m_folder.filePath(name)).isFile(); }
    bool hasFolder(const QString &name) const { return QFileInfo(m_folder.filePath(name)).isDir(); }

    QByteArray content(const QString &name) const
    {
        const QFileInfo info(m_folder.filePath(name));
        const Result<QByteArray> bytes = info.isFile() ? readWholeFile(info.filePath(), longestMark) : QByteArray();
        return bytes ? bytes.value() : QByteArray();
    }

    QJsonObject json(const QString &name) const { return QJsonDocument::fromJson(content(name)).object(); }

    bool hasLine(const QString &name, QByteArrayView start) const
    {
        const QByteArray text = content(name);
        return text.startsWith(start) || text.contains(QByteArray('\n' + start.toByteArray()));
    }

    bool dependsOn(const QString &package) const
    {
        const QJsonObject manifest = json(u"package.json"_s);
        return manifest[u"dependencies"_s].toObject().contains(package) ||
               manifest[u"devDependencies"_s].toObject().contains(package);
    }

    /// Its settings are a program. Where its platforms are made already, what it names counts no more.
    bool isExpoProgram() const
    {
        return dependsOn(u"expo"_s) && !unreadSettings(ProjectKind::Expo, m_folder.path()).isEmpty() &&
               !hasMark(ProjectKind::ReactNative);
    }

    bool hasWidget() const
    {
        QXmlStreamReader reader(content(u"config.xml"_s));
        return reader.readNextStartElement() && reader.name() == u"widget";
    }

    bool hasMaui() const
    {
        const QStringList files = m_folder.entryList({u"*.csproj"_s}, QDir::Files);
        return std::any_of(files.begin(), files.end(),
                           [this](const QString &file) { return content(file).contains("UseMaui"); });
    }

    QDir m_folder;
};

QList<RecognizedProject> recognizedIn(const QString &root, const QString &folder)
{
    const Place place(folder.isEmpty() ? root : QString(root + u'/' + folder));
    QList<RecognizedProject> projects;
    for (const ProjectKindInfo &info : projectKinds) {
        const bool plain = info.kind == ProjectKind::Xcode || info.kind == ProjectKind::Gradle;
        const bool ofAnother = std::any_of(projects.begin(), projects.end(), [](const RecognizedProject &project) {
            return project.kind != ProjectKind::Xcode && project.kind != ProjectKind::Gradle;
        });
        if (place.hasMark(info.kind) && !(plain && ofAnother))
            projects << RecognizedProject{info.kind, folder};
    }
    return projects;
}

} // namespace

QList<RecognizedProject> recognizeProjects(const QString &root)
{
    QList<RecognizedProject> found = recognizedIn(root, {});
    QStringList folders{QString()};
    int looked = 0;
    for (int level = 0; level < levelsBelow && found.isEmpty(); ++level) {
        QStringList below;
        for (const QString &folder : std::as_const(folders)) {
            const QStringList names =
                QDir(root + u'/' + folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks, QDir::Name);
            for (const QString &name : names) {
                if (name.startsWith(u'.') || name == u"node_modules" || ++looked > mostFolders)
                    continue;
                below << (folder.isEmpty() ? name : QString(folder + u'/' + name));
                found << recognizedIn(root, below.last());
            }
        }
        folders = below;
    }
    return found;
}

QStringList projectMarks()
{
    QStringList marks;
    for (const ProjectKindInfo &info : projectKinds)
        marks << QLatin1StringView(info.name) + u": "_s + QLatin1StringView(info.mark);
    return marks;
}

} // namespace lumora
