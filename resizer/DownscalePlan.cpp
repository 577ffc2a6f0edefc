// SPDX-License-Identifier: MIT
#include "DownscalePlan.h"

#include "DownscaleBatch.h"
#include "FileIdentity.h"
#include "RetinaName.h"
#include "RetinaSearch.h"

#include <QFileInfo>
#include <QSet>

#include <iterator>
#include <utility>

namespace lumora
{

namespace
{

void gather(const QString &argument, DownscalePlan &plan)
{
    const QFileInfo entry(argument);
    const QString path = entry.absoluteFilePath();
    if (!entry.exists()) {
        plan.failures.push_back({FailureCode::NotFound, argument, {}});
    } else if (!entry.isDir()) {
        if (isDoubleResolution(path))
            plan.sources << path;
        else
            plan.failures.push_back({FailureCode::NotMarked, argument, {}});
    } else {
        RetinaSearch found = findDoubleResolution(path);
        if (found.files.isEmpty() && found.failures.empty())
            plan.failures.push_back(
                {FailureCode::MissingContent, argument, QStringLiteral("no .png marked @2x or -hd")});
        plan.sources << found.files;
        std::move(found.failures.begin(), found.failures.end(), std::back_inserter(plan.failures));
    }
}

void keepEachFileOnce(QStringList &paths, QSet<QString> &identities)
{
    paths.removeIf([&identities](const QString &path) {
        const QString identity = fileIdentity(path);
        const bool seen = identities.contains(identity);
        identities.insert(identity);
        return seen;
    });
}

} // namespace

DownscalePlan planDownscaling(const QStringList &filesAndFolders, const QString &destination,
                              SourceReplacement replacement)
{
    DownscalePlan plan;
    for (const QString &argument : filesAndFolders)
        gather(argument, plan);
    QSet<QString> identities;
    keepEachFileOnce(plan.sources, identities);
    if (replacement == SourceReplacement::Allow)
        return plan;
    // What was named and refused is the user's picture too.
    for (const QString &argument : filesAndFolders)
        identities.insert(fileIdentity(argument));
    plan.sources.removeIf([&](const QString &source) {
        const QString target = downscaledPath(source, destination);
        const bool replaces = identities.contains(fileIdentity(target));
        if (replaces)
            plan.failures.push_back({FailureCode::WouldReplaceSource, target, {}});
        return replaces;
    });
    return plan;
}

} // namespace lumora
