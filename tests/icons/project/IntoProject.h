// SPDX-License-Identifier: MIT
#pragma once

#include "ProjectTrees.h"
#include "icons/project/ProjectPlan.h"
#include "icons/project/ProjectWriter.h"
#include "icons/today/Motifs.h"
#include "pictures/svg/SvgDrawing.h"
#include "tests/doubles/FilesOnDisk.h"

#include <algorithm>
#include <optional>

namespace lumora
{

inline bool put(const QString &folder, const Tree &tree)
{
    for (auto file = tree.begin(); file != tree.end(); ++file) {
        if (!putFile(folder + u'/' + file.key(), file.value()))
            return false;
    }
    return true;
}

inline TodaySources drawn()
{
    TodaySources sources;
    sources.icon = Artwork(SvgDrawing::read("<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 10 10\">"
                                            "<path fill=\"#d33\" d=\"M0 0h10v10h-10z\"/>"
                                            "<path fill=\"#fff\" d=\"M3 3h4v4h-4z\"/></svg>",
                                            {})
                               .value());
    return sources;
}

/// What came of writing the icons into a project.
struct Put
{
    std::optional<Failure> failure;
    QList<ProjectFile> files;
    QStringList linesToAdd;
    FilePlan plan;
    qsizetype count(FileChange change) const
    {
        return std::count_if(files.begin(), files.end(),
                             [change](const ProjectFile &file) { return file.change == change; });
    }
    QStringList paths() const
    {
        QStringList paths;
        for (const ProjectFile &file : files)
            paths << file.path;
        return paths;
    }
};

inline Put putInto(const QString &folder, const ProjectOptions &options = {}, const TodaySources &sources = drawn())
{
    const Motifs motifs(sources, MacForm::Body);
    const Result<ProjectPlan> plan = planProjects(folder, motifs, options);
    if (!plan)
        return {plan.failure(), {}, {}, {}};
    const Result<QList<ProjectFile>> files = compareWithProject(folder, plan.value().files, motifs, {});
    if (!files)
        return {files.failure(), {}, {}, {}};
    const Outcome written = writeIntoProject(folder, files.value(), {});
    return {written ? std::nullopt : std::optional(written.failure()), files.value(), plan.value().files.linesToAdd,
            plan.value().files};
}

/// Every file with its content.
inline Tree content(const QString &folder)
{
    Tree tree;
    for (const QString &file : filesBelowFolder(folder))
        tree[file] = contentOfFile(folder + u'/' + file);
    return tree;
}

} // namespace lumora
