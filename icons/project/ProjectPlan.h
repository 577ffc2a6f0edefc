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

/// Which part of a project is meant.
struct ProjectOptions
{
    QString flavor; ///< of an Android or Flutter app, empty for its main source set
    QString target; ///< of an Xcode project, empty for the only icon there is
};

/// The plan for every project in a folder.
struct ProjectPlan
{
    QList<RecognizedProject> projects;
    FilePlan files; ///< by their paths from the folder
};

/// Finds the projects in the folder and plans exactly the files that they hold; with a flavor or target, only those of
/// the projects that have it. Fails with `NotAProject` where there is
/// none or none has a place for icons, with `AmbiguousProject` where two want one file to be different, a project has
/// several icons of which none was chosen, or none has the flavor or target that was; and as the sets' own plans do.
Result<ProjectPlan> planProjects(const QString &root, const Motifs &motifs, const ProjectOptions &options);

/// Each kind's own plan; `root` is the tree's, `folder` the project's from there.
class ProjectPlaces
{
public:
    ProjectPlaces(QString root, const RecognizedProject &project, const Motifs &motifs, const ProjectOptions &options,
                  FilePlan &plan);
    Outcome add();

    /// Whether the flavor or target that was chosen may be one of this project; true where none was chosen.
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

    bool isFlavorKnown() const;
    /// The folders of the sources of its Android modules.
    QStringList androidSources() const;
    Outcome addAndroid(StorePicture store);
    Outcome addCatalogues(const QString &folder, const QString &name, bool forMac);
    /// A square picture in the size that it has there, else in another.
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
