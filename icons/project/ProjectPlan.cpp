// SPDX-License-Identifier: MIT
#include "ProjectPlan.h"

#include "icons/today/Motifs.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

QString description(const RecognizedProject &project)
{
    const QString name = QLatin1StringView(infoOf(project.kind).name);
    return project.folder.isEmpty() ? name : QString(name + u" in "_s + project.folder);
}

bool isSame(const PlannedFile &one, const PlannedFile &other)
{
    return one.kind == other.kind && one.pictures == other.pictures && one.text == other.text;
}

void addAll(FilePlan &plan, const FilePlan &more)
{
    plan.files += more.files;
    plan.linesToAdd += more.linesToAdd;
    plan.filesToRemove += more.filesToRemove;
    for (const Derived &derived : more.derived)
        plan.note(derived.derivation, derived.detail);
}

} // namespace

Result<ProjectPlan> planProjects(const QString &root, const Motifs &motifs, const ProjectOptions &options)
{
    ProjectPlan plan{recognizeProjects(root), {}};
    if (plan.projects.isEmpty())
        return Failure{FailureCode::NotAProject, root, projectMarks().join(u"; "_s)};
    QHash<QString, RecognizedProject> owners;
    bool anyIsMeant = false;
    for (const RecognizedProject &project : plan.projects) {
        FilePlan files;
        ProjectPlaces places(root, project, motifs, options, files);
        if (!places.isMeant())
            continue;
        anyIsMeant = true;
        const Outcome planned = places.add();
        if (!planned)
            return planned.failure();
        FilePlan fresh;
        for (const PlannedFile &file : files.files) {
            const auto owner = owners.constFind(file.path);
            if (owner == owners.constEnd()) {
                owners.insert(file.path, project);
                fresh.files << file;
                continue;
            }
            for (const PlannedFile &other : plan.files.files) {
                if (other.path == file.path && !isSame(file, other))
                    return Failure{FailureCode::AmbiguousProject,
                                   root,
                                   {"DETAIL_BOTH_WANT",
                                    {{"[FIRST]", description(*owner)},
                                     {"[SECOND]", description(project)},
                                     {"[FILE]", file.path}}}};
            }
        }
        files.files = fresh.files;
        addAll(plan.files, files);
    }
    if (plan.files.files.isEmpty()) {
        QStringList names;
        for (const RecognizedProject &project : plan.projects)
            names << description(project);
        if (!anyIsMeant)
            return Failure{FailureCode::AmbiguousProject,
                           root,
                           {options.flavor.isEmpty() ? "DETAIL_NO_TARGET" : "DETAIL_NO_FLAVOR",
                            {{"[NAME]", options.flavor.isEmpty() ? options.target : options.flavor},
                             {"[PROJECTS]", names.join(u", "_s)}}}};
        return Failure{
            FailureCode::NotAProject, root, {"DETAIL_NO_ICON_PLACES", {{"[PROJECTS]", names.join(u", "_s)}}}};
    }
    plan.files.filesToRemove.removeDuplicates();
    return plan;
}

} // namespace lumora
