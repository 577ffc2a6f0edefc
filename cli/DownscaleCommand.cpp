// SPDX-License-Identifier: MIT
#include "DownscaleCommand.h"

#include "Console.h"
#include "ExistingFolder.h"
#include "FailureText.h"
#include "resizer/DownscaleBatch.h"
#include "resizer/DownscalePlan.h"

#include <QFileInfo>
#include <QHash>
#include <QJsonArray>
#include <QJsonObject>

#include <limits>
#include <memory>
#include <string>
#include <vector>

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
    std::vector<std::string> sources;
    std::string destination;
    bool overwrite = false;
    bool dryRun = false;
    bool json = false;
};

/// Prints results as they come, or gathers them for the JSON object; turns failures into lines and the exit status.
class Report
{
public:
    Report(Console &console, bool json) : m_console(console), m_json(json) {}

    void add(const DownscaledFile &file)
    {
        if (!file.outcome) {
            add(file.outcome.failure());
            return;
        }
        if (!m_json) {
            m_console.print(file.target);
            return;
        }
        QJsonObject entry{{u"source"_s, file.source},
                          {u"path"_s, file.target},
                          {u"width"_s, file.size.width()},
                          {u"height"_s, file.size.height()}};
        if (file.bytes > 0)
            entry.insert(u"bytes"_s, file.bytes);
        m_files.append(entry);
    }
    void add(const Failure &failure)
    {
        // Of all the formats that pictures come in, only one has a name that is taken here.
        if (failure.code == FailureCode::NotAPicture)
            m_console.complain(failureText(failure, "use an undamaged PNG file"_L1));
        else
            m_console.complain(failure);
        m_status = ExitStatus::Refused;
    }
    ExitStatus finish()
    {
        m_console.endProgress();
        if (m_json)
            m_console.print(QJsonDocument(QJsonObject{{u"schema"_s, 1}, {u"files"_s, m_files}}));
        return m_status;
    }

private:
    Console &m_console;
    const bool m_json;
    QJsonArray m_files;
    ExitStatus m_status = ExitStatus::Done;
};

void warnOfSharedNames(Console &console, const QStringList &sources, const QString &destination)
{
    QHash<QString, QString> firstSource;
    for (const QString &source : sources) {
        const QString target = downscaledPath(source, destination);
        if (firstSource.contains(target))
            console.complain(
                u"%1: replaces the half of %2, which has the same name; give them folders of their own"_s.arg(
                    source, firstSource.value(target)));
        firstSource.insert(target, source);
    }
}

/// Every picture asks for several buffers as large as itself. Given back to the system between two pictures, their
/// pages would have to be made anew each time, at a tenth of the whole run.
void keepFreedMemory()
{
#if defined(__GLIBC__)
    constexpr int largestKept = 32 * 1024 * 1024;
    ::mallopt(M_MMAP_THRESHOLD, largestKept);
    ::mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
    // Only the first arena grows without bounds; for few and large requests its lock does not matter.
    ::mallopt(M_ARENA_MAX, 1);
#endif
}

ExitStatus runDownscale(Console &console, const DownscaleArguments &arguments)
{
    const Result<QString> folder = existingFolder(arguments.destination);
    if (!folder) {
        console.complain(folder.failure());
        return ExitStatus::Refused;
    }
    const QString &destination = folder.value();
    QStringList named;
    for (const std::string &source : arguments.sources)
        named << QString::fromStdString(source);
    const DownscalePlan plan =
        planDownscaling(named, destination, arguments.overwrite ? SourceReplacement::Allow : SourceReplacement::Refuse);

    Report report(console, arguments.json);
    for (const Failure &failure : plan.failures)
        report.add(failure);
    warnOfSharedNames(console, plan.sources, destination);
    if (arguments.dryRun) {
        for (const QString &source : plan.sources)
            report.add(foreseenHalf(source, destination));
        return report.finish();
    }
    keepFreedMemory();
    createImagesFromDataPaths(plan.sources, destination, [&](qsizetype index, const DownscaledFile &file) {
        report.add(file);
        console.progress(index + 1, plan.sources.size(), QFileInfo(file.target).fileName());
        return true;
    });
    return report.finish();
}

} // namespace

CommandBody declareDownscaleCommand(CLI::App &subcommand)
{
    const auto arguments = std::make_shared<DownscaleArguments>();
    subcommand.description("Halve double-resolution PNG pictures");
    subcommand
        .add_option("SOURCE", arguments->sources,
                    "PNG files marked @2x or -hd, or folders that are searched for such files")
        ->type_name("FILE|FOLDER")
        ->required();
    subcommand.add_option("--to", arguments->destination, "Existing folder to write into")
        ->type_name("DIR")
        ->required();
    subcommand.add_flag("--overwrite", arguments->overwrite, "Allow a result to replace one of the source files");
    subcommand.add_flag("--dry-run", arguments->dryRun, "Print what would be written, write nothing");
    subcommand.add_flag("--json", arguments->json, "Print the written files as one JSON object");
    return [arguments](Console &console) { return runDownscale(console, *arguments); };
}

} // namespace lumora
