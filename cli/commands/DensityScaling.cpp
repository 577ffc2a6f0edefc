// SPDX-License-Identifier: MIT
#include "DensityScaling.h"

#include "cli/arguments/Declaration.h"
#include "cli/console/CommandText.h"
#include "cli/console/Interruption.h"
#include "cli/console/KeptMemory.h"
#include "resizer/densities/DensityBatch.h"
#include "resizer/densities/DensityPlan.h"

#include <QFileInfo>
#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

QStringList layoutNames()
{
    QStringList names;
    for (const DensityLayout &layout : densityLayouts())
        names << layout.name;
    return names;
}

/// Prints the files that are or would be written, and collects them for the JSON object.
class Report
{
public:
    explicit Report(Console &console) : m_console(console) {}

    void add(const PlannedSource &source, const PlannedTarget &picture)
    {
        QStringList remarks{u"%1x%2"_s.arg(picture.size.width()).arg(picture.size.height())};
        if (picture.rounded)
            remarks << commandText("CLI_DOWNSCALE_ROUNDED");
        if (picture.exists)
            remarks << commandText(picture.written ? "CLI_DRY_REPLACES" : "CLI_DRY_EXISTS");
        m_console.print(QString(picture.target + u" ("_s + remarks.join(u", "_s) + u')'));
        m_files.append(QJsonObject{{u"source"_s, source.source},
                                   {u"path"_s, picture.target},
                                   {u"width"_s, picture.size.width()},
                                   {u"height"_s, picture.size.height()},
                                   {u"scale"_s, densityText(picture.density)},
                                   {u"rounded"_s, picture.rounded},
                                   {u"exists"_s, picture.exists},
                                   {u"written"_s, picture.written}});
    }

    void add(const ScaledFile &file)
    {
        if (!file.outcome) {
            add(file.outcome.failure());
            return;
        }
        m_console.print(file.target);
        if (file.rounded)
            m_console.note(QString(file.target + u": "_s + commandText("CLI_DOWNSCALE_ROUNDED")));
        m_files.append(QJsonObject{{u"source"_s, file.source},
                                   {u"path"_s, file.target},
                                   {u"width"_s, file.size.width()},
                                   {u"height"_s, file.size.height()},
                                   {u"rounded"_s, file.rounded},
                                   {u"bytes"_s, file.bytes}});
    }

    void add(const Failure &failure)
    {
        Complaint complaint = complaintOf(failure);
        if (failure.code == FailureCode::InvalidValue || failure.code == FailureCode::MissingContent) {
            complaint.message = failure.detail.words();
            complaint.advice = commandText("CLI_DOWNSCALE_SOURCES_ADVICE");
        } else if (failure.code == FailureCode::WouldReplaceSource) {
            // Unlike halves, densities never replace a source, whatever the options.
            complaint.advice = commandText("CLI_DOWNSCALE_SOURCE_STAYS");
        }
        m_console.complain(complaint);
        m_status = ExitStatus::Refused;
    }

    /// Collects the existing files that stay.
    void keep(const DensityPlan &plan)
    {
        for (const PlannedSource &source : plan.sources) {
            for (const PlannedTarget &picture : source.pictures) {
                if (!picture.written)
                    m_kept.append(picture.target);
            }
        }
    }

    /// Says what stays, so that a run without work is no riddle.
    void warnOfKept() const
    {
        if (!m_kept.isEmpty())
            m_console.warn(commandText("CLI_DOWNSCALE_KEPT", {{"[COUNT]", QString::number(m_kept.size())}}));
    }

    void stop(qsizetype planned)
    {
        m_console.complain(Interruption::complaint(m_files.size(), planned));
        m_status = Interruption::status();
    }

    ExitStatus finish()
    {
        m_console.endProgress();
        return m_console.finish(m_status, {{u"files"_s, m_files}, {u"kept"_s, m_kept}});
    }

private:
    Console &m_console;
    QJsonArray m_files;
    QJsonArray m_kept;
    ExitStatus m_status = ExitStatus::Done;
};

/// A density as it is typed: "3x", or as in the names of files and of Flutter's folders, "@3x" and "3.0x".
std::optional<Density> typedDensity(QString text)
{
    if (text.startsWith(u'@'))
        text.remove(0, 1);
    if (text.endsWith(".0x"_L1))
        text.replace(text.size() - 3, 3, u"x"_s);
    return densityNamed(text);
}

std::optional<Complaint> takeScales(const DensityScalingRequest &request, DensityRequest &density)
{
    const auto wrong = [](const QString &option, const QString &value, const char *key) {
        Complaint complaint = misuse("bad-value", commandText(key));
        complaint.path = option + u' ' + value;
        return complaint;
    };
    if (request.from == "svg"_L1) {
        density.kind = SourceKind::Drawings;
    } else if (!request.from.isEmpty()) {
        density.from = typedDensity(request.from);
        if (!density.from)
            return wrong(u"--from"_s, request.from, "CLI_DOWNSCALE_NO_SOURCE_SCALE");
    }
    for (const QString &scale : request.toScales) {
        const std::optional<Density> to = typedDensity(scale);
        if (!to)
            return wrong(u"--to-scales"_s, scale, "CLI_DOWNSCALE_NO_SCALE");
        if (density.from && !(*to < *density.from))
            return misuse("bad-value",
                          commandText("CLI_DOWNSCALE_NOT_BELOW", {{"[SCALE]", scale}, {"[FROM]", request.from}}));
        density.to.push_back(*to);
    }
    const auto belongs = [&density](const Density &one) {
        return std::ranges::find(density.layout->densities, one) != density.layout->densities.end();
    };
    for (const Density &one : density.to) {
        if (!belongs(one))
            return misuse("bad-value", commandText("CLI_DOWNSCALE_NOT_OF_LAYOUT",
                                                   {{"[SCALE]", densityText(one)}, {"[LAYOUT]", request.layout}}));
    }
    return std::nullopt;
}

/// The destination folder; empty to write beside the sources.
Result<QString> destination(const OutputPlace &place, bool dryRun)
{
    const QString given = place.isExact() ? place.out : place.to;
    if (given.isEmpty())
        return QString();
    return dryRun ? absolutePath(given) : place.folder();
}

void write(Console &console, Report &report, const DensityPlan &plan, const DensityBatchOptions &options)
{
    const Interruption interruption;
    const qsizetype total = std::ssize(plan.sources);
    qsizetype done = 0;
    scaleDensities(plan, options, [&](qsizetype index, const std::vector<ScaledFile> &files) {
        for (const ScaledFile &file : files)
            report.add(file);
        ++done;
        console.progress(done, total, QFileInfo(plan.sources[static_cast<std::size_t>(index)].source).fileName());
        return !Interruption::isRequested();
    });
    if (done < total)
        report.stop(plannedFiles(plan));
}

} // namespace

void DensityScalingRequest::declareOn(Declaration &declaration)
{
    declaration.option("--layout", &layout, "LAYOUT", "CLI_DOWNSCALE_LAYOUT").words(layoutNames());
    declaration.option("--from", &from, "SCALE", "CLI_DOWNSCALE_FROM");
    declaration.option("--to-scales", &toScales, "SCALE", "CLI_DOWNSCALE_TO_SCALES").list();
    declaration.option("--format", &format, "FORMAT", "CLI_DOWNSCALE_FORMAT").words({u"png"_s, u"webp"_s});
    declaration.option("--quality", &quality, "N", "CLI_QUALITY").range(0, 100);
}

bool DensityScalingRequest::isMeant() const
{
    return !layout.isEmpty() || !from.isEmpty() || !toScales.isEmpty() || !format.isEmpty() || quality;
}

ExitStatus scaleToDensities(Console &console, const QStringList &sources, const DensityScalingRequest &request,
                            const OutputPlace &place, bool overwrite, bool dryRun)
{
    DensityRequest density;
    DensityScalingRequest named = request;
    // Most projects mark their pictures as in iOS.
    if (named.layout.isEmpty())
        named.layout = u"ios"_s;
    density.layout = densityLayoutNamed(named.layout);
    std::optional<Complaint> complaint = takeScales(named, density);
    if (!complaint && request.quality && request.format != u"webp")
        complaint = misuse("conflicting-options",
                           commandText("CLI_NEEDS", {{"[FIRST]", u"--quality"_s}, {"[SECOND]", u"--format webp"_s}}));
    if (complaint) {
        console.complain(*complaint);
        return console.finish(ExitStatus::Usage);
    }
    const Result<QString> folder = destination(place, dryRun);
    if (!folder) {
        console.complain(folder.failure());
        return console.finish(ExitStatus::Refused);
    }
    density.destination = folder.value();
    density.existing = overwrite ? ExistingFiles::Replace : ExistingFiles::Keep;
    density.format = request.format.isEmpty()   ? ScaledFormat::AsSource
                     : request.format == u"png" ? ScaledFormat::Png
                                                : ScaledFormat::WebP;
    Report report(console);
    const DensityPlan plan = planDensities(sources, density);
    for (const Failure &failure : plan.failures)
        report.add(failure);
    report.keep(plan);
    if (dryRun) {
        for (const PlannedSource &source : plan.sources) {
            for (const PlannedTarget &picture : source.pictures)
                report.add(source, picture);
        }
        return report.finish();
    }
    keepFreedMemory();
    write(console, report, plan, {request.quality, density.existing});
    report.warnOfKept();
    return report.finish();
}

} // namespace lumora
