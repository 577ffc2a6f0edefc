// SPDX-License-Identifier: MIT
#pragma once

#include "AndroidModule.h"
#include "ProjectRecognition.h"
#include "foundation/Result.h"
#include "icons/today/FilePlan.h"

#include <QString>

namespace lumora
{

class Motifs;
struct NamedIcon;
struct XcodeProject;

/// The chosen part of a project.
struct ProjectOptions
{
    QString flavor; ///< of an Android or Flutter app, empty for its main source set
    QString target; ///< of an Xcode project, or its icon set; empty for the only set there is
};

/// The plan for every project in a folder.
struct ProjectPlan
{
    QList<RecognizedProject> projects;
    FilePlan files; ///< with paths relative to the folder
};

/// Finds the projects in the folder and plans exactly their icon files; with a flavor or target, only for the projects
/// that have it. Fails with `NotAProject` if there is no project, or none with a place for icons; with
/// `AmbiguousProject` if two projects need different contents in one file, if a project has several icons and none is
/// chosen, or if no project has the chosen flavor or target; and as the plans of the sets do.
Result<ProjectPlan> planProjects(const QString &root, const Motifs &motifs, const ProjectOptions &options);

/// The plan of each kind of project; `root` is the tree's folder, `folder` the project's path below it.
class ProjectPlaces
{
public:
    ProjectPlaces(QString root, const RecognizedProject &project, const Motifs &motifs, const ProjectOptions &options,
                  FilePlan &plan);
    Outcome add();

    /// Whether this project may have the chosen flavor or target; true if none is chosen.
    bool isMeant() const;

private:
    Outcome addFlutter();
    Outcome addCapacitor();
    Outcome addCordova();
    Outcome addReactNative();
    Outcome addExpo();
    Outcome addTauri();
    Outcome addElectron();
    Outcome addMaui();
    Outcome addXcode(const QString &folder);
    Outcome addGradle();

    /// Adds the pictures that the project's files name and returns them.
    Result<QList<NamedIcon>> addAllNamed();
    Outcome addNamed(const NamedIcon &icon);
    /// The background of an adaptive icon. One that is there and that no given background replaces is kept.
    void addBackground(const NamedIcon &icon);

    bool isFlavorKnown() const;
    /// The source folders of its Android modules.
    QStringList androidSources() const;
    Outcome addAndroid(StorePicture store);
    /// The paths of all icon sets below the folder.
    QStringList iconSets(const QString &folder) const;
    QStringList iconSetNames(const QString &folder) const;
    /// The set that is meant if the Xcode project names none: the usual one, else the only one. Fails with
    /// `AmbiguousProject` if there are several.
    Result<QString> unnamedIconSet(const QString &folder);
    /// The set of the chosen flavor, or as above.
    Result<QString> flutterIconSet(const QString &folder);
    /// The set that the Xcode project or the chosen target names, or the chosen set. Fails with `AmbiguousProject` if
    /// there is no such one, or several.
    Result<QString> chosenIconSet(const QString &folder, const XcodeProject &project);
    Outcome addCatalogues(const QString &folder, const QString &name, bool forMac);
    /// A square picture in the size of the existing file, or in the given size if there is none.
    void addSquare(const QString &file, PictureRecipe recipe);
    Outcome addOpaque(const QString &file, int edge);
    bool has(const QString &path) const;
    QString whole(const QString &path) const;
    QString at(const QString &path) const;

    QString m_root;
    RecognizedProject m_project;
    const Motifs &m_motifs;
    const ProjectOptions &m_options;
    FilePlan &m_plan;
};

} // namespace lumora
