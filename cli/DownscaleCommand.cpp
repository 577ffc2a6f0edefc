// SPDX-License-Identifier: MIT
#include "DownscaleCommand.h"

#include "Console.h"
#include "icons/PictureReader.h"
#include "resizer/DownscaleBatch.h"
#include "resizer/DownscalePlan.h"
#include "resizer/RetinaPicture.h"

#include <QDir>
#include <QHash>
#include <QJsonArray>
#include <QJsonObject>

#include <memory>
#include <string>
#include <vector>

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

/// What the run would write, judged by the pictures' headers.
DownscaledFile foreseen(const QString &source, const QString &destination)
{
    DownscaledFile file{source, downscaledPath(source, destination), {}, 0, Done{}};
    const Result<QSize> stored = storedPixelSize(source);
    const Result<QSize> half = stored ? halvedSize(stored.value(), source) : stored;
    if (half)
        file.size = half.value();
    else
        file.outcome = half.failure();
    return file;
}

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

ExitStatus runDownscale(Console &console, const DownscaleArguments &arguments)
{
    const QString destination = QDir(QString::fromStdString(arguments.destination)).absolutePath();
    const QFileInfo folder(destination);
    if (!folder.isDir()) {
        console.complain(Failure{folder.exists() ? FailureCode::NotAFolder : FailureCode::NotFound, destination, {}});
        return ExitStatus::Refused;
    }
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
            report.add(foreseen(source, destination));
        return report.finish();
    }
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
