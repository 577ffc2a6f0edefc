// SPDX-License-Identifier: MIT
#include "DownscaleCommand.h"

#include "DensityScaling.h"
#include "cli/arguments/Declaration.h"
#include "cli/arguments/OutputPlace.h"
#include "cli/console/CommandText.h"
#include "cli/console/Interruption.h"
#include "resizer/DownscalePlan.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>

#include <limits>
#include <memory>

#include <cstdlib>
#if defined(__GLIBC__)
#include <malloc.h>
#endif

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

struct DownscaleArguments
{
    QStringList sources;
    OutputPlace place;
    DensityScalingRequest densities;
    bool overwrite = false;
    bool dryRun = false;
};

/// Prints results as they come and collects them for the JSON object; turns failures into lines and the exit status.
class Report
{
public:
    Report(Console &console, bool dryRun) : m_console(console), m_dryRun(dryRun) {}

    void add(const DownscaledFile &file)
    {
        if (!file.outcome) {
            add(file.outcome.failure());
            return;
        }
        const bool exists = m_dryRun && QFileInfo::exists(file.target);
        m_console.note(file.source);
        m_console.print(exists ? file.target + u" ("_s + commandText("CLI_DRY_REPLACES") + u')' : file.target);
        QJsonObject entry{{u"source"_s, file.source},
                          {u"path"_s, file.target},
                          {u"width"_s, file.size.width()},
                          {u"height"_s, file.size.height()}};
        if (file.bytes > 0)
            entry.insert(u"bytes"_s, file.bytes);
        if (exists)
            entry.insert(u"exists"_s, true);
        m_files.append(entry);
    }
    void add(const Failure &failure)
    {
        if (m_dryRun && failure.code == FailureCode::Exists)
            m_console.print(QString(failure.subject + u" ("_s + commandText("CLI_DRY_EXISTS") + u')'));
        m_console.complain(worded(failure));
        m_status = ExitStatus::Refused;
    }
    ExitStatus finish(qsizetype expected)
    {
        m_console.endProgress();
        if (Interruption::isRequested() && m_files.size() < expected) {
            m_console.complain(Interruption::complaint(m_files.size(), expected));
            m_status = Interruption::status();
        }
        return m_console.finish(m_status, {{u"files"_s, m_files}});
    }

private:
    static Complaint worded(const Failure &failure)
    {
        // Only one of the picture formats is accepted here.
        if (failure.code == FailureCode::NotAPicture)
            return complaintOf(failure, commandText("CLI_DOWNSCALE_FORMAT_ADVICE"));
        Complaint complaint = complaintOf(failure);
        if (failure.code == FailureCode::MissingContent)
            complaint.message = commandText("CLI_NO_MARKED_PICTURE");
        return complaint;
    }

    Console &m_console;
    const bool m_dryRun;
    QJsonArray m_files;
    ExitStatus m_status = ExitStatus::Done;
};

/// Every picture needs several buffers of its own size. Returning them to the system between two pictures would cost a
/// tenth of the run's time for new pages.
void keepFreedMemory()
{
#if defined(__GLIBC__)
    constexpr int largestKept = 32 * 1024 * 1024;
    ::mallopt(M_MMAP_THRESHOLD, largestKept);
    ::mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
    // Only the first arena grows without limit; for few large requests its lock does not matter.
    ::mallopt(M_ARENA_MAX, 1);
#endif
}

/// The destination: a run makes it, a dry run only checks it.
Result<QString> destination(const DownscaleArguments &arguments)
{
    if (!arguments.dryRun)
        return arguments.place.folder();
    const QString &given = arguments.place.isExact() ? arguments.place.out : arguments.place.to;
    const Result<QString> path = absolutePath(given);
    if (path && QFileInfo::exists(path.value()) && !QFileInfo(path.value()).isDir())
        return Failure{FailureCode::NotAFolder, given, {}};
    return path;
}

ExitStatus runDownscale(Console &console, const DownscaleArguments &arguments)
{
    if (arguments.densities.isMeant())
        return scaleToDensities(console, arguments.sources, arguments.densities, arguments.place, arguments.overwrite,
                                arguments.dryRun);
    const Result<QString> folder = destination(arguments);
    if (!folder) {
        console.complain(folder.failure());
        return ExitStatus::Refused;
    }
    const DownscalePlan plan = planDownscaling({arguments.sources, folder.value(),
                                                arguments.overwrite ? FileReplacement::Allow : FileReplacement::Refuse,
                                                arguments.place.isExact() ? TreeLayout::Kept : TreeLayout::Flat});
    const Interruption interruption;
    Report report(console, arguments.dryRun);
    for (const Failure &failure : plan.failures)
        report.add(failure);
    if (arguments.dryRun) {
        for (const DownscaleJob &job : plan.jobs)
            report.add(foreseenHalf(job));
        return report.finish(plan.jobs.size());
    }
    keepFreedMemory();
    downscale(plan.jobs, [&](qsizetype index, const DownscaledFile &file) {
        report.add(file);
        console.progress(index + 1, plan.jobs.size(), QFileInfo(file.target).fileName());
        return !Interruption::isRequested();
    });
    return report.finish(plan.jobs.size());
}

} // namespace

CommandBody declareDownscaleCommand(Declaration &declaration)
{
    const auto arguments = std::make_shared<DownscaleArguments>();
    declaration.operand("SOURCE", &arguments->sources, "CLI_DOWNSCALE_SOURCE").required();
    declaration.flag("--overwrite", &arguments->overwrite, "CLI_DOWNSCALE_OVERWRITE");
    declaration.flag("--dry-run", &arguments->dryRun, "CLI_DOWNSCALE_DRY_RUN");
    arguments->densities.declareOn(declaration);
    arguments->place.declareBeside(declaration, "CLI_DOWNSCALE_TO", {u"--layout"_s});
    declaration.example("lumora downscale art --out res --dry-run");
    declaration.example("lumora downscale art --from 3x --to-scales 2x,1x --layout ios --dry-run");
    return [arguments](Console &console) { return runDownscale(console, *arguments); };
}

} // namespace lumora
