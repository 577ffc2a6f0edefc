// SPDX-License-Identifier: MIT
#include "ValidateCommand.h"

#include "PackageComplaint.h"
#include "PackageLock.h"
#include "PackageReportText.h"
#include "ReportFiles.h"
#include "RunnableModels.h"
#include "SpooledPackage.h"
#include "StoreDemands.h"
#include "StoreReport.h"
#include "WrittenPlaces.h"
#include "cli/arguments/Declaration.h"
#include "cli/console/CommandText.h"
#include "cli/console/Interruption.h"
#include "foundation/ProcessLock.h"
#include "pictures/PictureOperations.h"
#include "pictures/png/PngEncoder.h"
#include "validator/archive/OpenPackage.h"
#include "validator/reports/PackageJson.h"
#include "validator/reports/PackagePage.h"
#include "validator/rules/ClassicVerdicts.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <memory>
#include <optional>
#include <variant>
#include <vector>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

struct ValidateArguments
{
    QStringList files;
    QString icon;
    bool noSandbox = false;
    bool devices = false;
    StoreArguments store;
    ReportFiles reports;
};

/// A package with all that is known of it.
struct Inspection
{
    PackageReport report;
    std::optional<PackageContents> contents; ///< nothing where only the classic rules are asked for
    QList<RuleVerdict> store;
    QList<Finding> findings;
    bool classicCounts = true;
    std::optional<ModelFilter> models; ///< where the models that run the app are asked for

    /// Of all rules that count.
    QList<RuleVerdict> verdicts() const { return classicCounts ? store + classicVerdicts(report) : store; }
};

/// A package, named as in messages and results. "-" is standard input.
struct GivenPackage
{
    QString name;
    bool isStdin = false;
};

GivenPackage givenPackage(const QString &argument)
{
    if (argument == u"-")
        return {commandText("CLI_STANDARD_INPUT"), true};
    return {argument, false};
}

Complaint wordedFailure(const GivenPackage &file, const Failure &failure)
{
    return file.isStdin ? complaintOf(Failure{failure.code, file.name, failure.detail})
                        : packageComplaint(file.name, failure);
}

std::variant<Inspection, Complaint> inspected(const GivenPackage &file, const SpooledPackage &spooled,
                                              const ProfileDecoder &decoder, const StoreDemands &demands,
                                              bool wantsModels)
{
    const auto source = file.isStdin ? spooled.open() : openPackage(file.name);
    if (!source)
        return wordedFailure(file, source.failure());
    Inspection inspection;
    WholeReading reading;
    if (demands.rules == u"classic" && !wantsModels) {
        reading = source.value()->readAll([](const PackageEntry &) { return nullptr; });
    } else {
        inspection.contents = readPackageContents(*source.value());
        reading = inspection.contents->reading;
    }
    inspection.report = inspectPackage(*source.value(), reading, decoder);
    const Outcome outcome = reportOutcome(inspection.report);
    if (!outcome)
        return wordedFailure(file, outcome.failure());
    if (inspection.contents && wantsModels)
        inspection.models = demandsOnModels(*inspection.contents);
    if (inspection.contents && demands.rules != u"classic") {
        const bool isOld = isOfOldTime(*inspection.contents);
        inspection.classicCounts = demands.rules == u"all" || (demands.rules == u"auto" && isOld);
        if (demands.rules != u"auto" || !isOld)
            inspection.store = verdictsOn(*inspection.contents, demands.settings, demands.ignored);
        inspection.findings = findingsAmong(inspection.store);
    }
    return inspection;
}

void complainOfDamage(Console &console, const QString &file, const PackageReport &report)
{
    for (const QString &entry : report.extraction.damagedEntries)
        console.complain(Complaint{Complaint::Kind::Failure, u"damaged-entry"_s, file,
                                   commandText("CLI_DAMAGED_ENTRY", {{"[ENTRY]", entry}}),
                                   commandText("CLI_DAMAGED_ENTRY_ADVICE")});
    if (!report.facts.appInfoPlist)
        console.complain(
            Complaint{Complaint::Kind::Failure, u"no-info-plist"_s, file, commandText("CLI_NO_INFO_PLIST"), {}});
}

bool writeIcon(Console &console, const QString &file, const PackageReport &report, const QString &path)
{
    if (report.artwork.appIcon.isNull()) {
        console.complain(Complaint{Complaint::Kind::Failure, u"no-icon"_s, file, commandText("CLI_NO_ICON"), {}});
        return false;
    }
    if (path == u"-") {
        const Result<QByteArray> png = encodePng(report.artwork.appIcon, file);
        if (png)
            console.print(png.value());
        else
            console.complain(png.failure());
        return png.ok();
    }
    const Outcome saved = saveImage(report.artwork.appIcon, BitmapType::Png, path);
    if (!saved)
        console.complain(saved.failure());
    return saved.ok();
}

/// Everything about a package, for scripts.
QJsonObject wholeJson(const QString &file, const Inspection &inspection)
{
    static const PackageContents nothing;
    QJsonObject object = reportJson(file, inspection.report);
    if (inspection.models)
        object.insert(u"models"_s, runnableModelsJson(*inspection.models));
    const QJsonObject store = storeJson(inspection.contents ? *inspection.contents : nothing, inspection.findings);
    for (auto member = store.begin(); member != store.end(); ++member)
        object.insert(member.key(), member.value());
    return object;
}

/// Reads the files one after another, with their shared settings.
class Validation
{
public:
    Validation(Console &console, const ValidateArguments &arguments, StoreDemands demands)
        : m_console(console), m_icon(arguments.icon), m_reports(arguments.reports), m_isSandboxed(!arguments.noSandbox),
          m_wantsModels(arguments.devices), m_demands(std::move(demands))
    {
        for (const QString &file : arguments.files)
            m_files.push_back(givenPackage(file));
    }

    ExitStatus run()
    {
        // A single package takes only a moment, and standard input may never end; in both cases a signal ends the
        // program itself.
        std::optional<Interruption> interruption;
        if (m_files.size() > 1 &&
            std::none_of(m_files.begin(), m_files.end(), [](const GivenPackage &file) { return file.isStdin; }))
            interruption.emplace();
        for (const GivenPackage &file : m_files) {
            if (file.isStdin)
                m_spooled.spool(file.name);
        }
        lockIn();
        for (const GivenPackage &file : m_files) {
            if (Interruption::isRequested())
                break;
            m_console.note(file.name);
            // "Could not be read" outranks "something is invalid", which outranks success.
            m_status = std::max(m_status, validate(file));
        }
        if (m_done < std::ssize(m_files)) {
            m_console.complain(Interruption::complaint(m_done, std::ssize(m_files), "CLI_INTERRUPTED_CHECK"));
            m_status = Interruption::status();
        }
        return finish();
    }

private:
    /// From here on the process can only reach the packages and the icon's path.
    void lockIn()
    {
        if (!m_isSandboxed) {
            m_console.note(commandText("CLI_SANDBOX_OFF"));
            return;
        }
        LockedPlaces places;
        for (const GivenPackage &file : m_files) {
            if (!file.isStdin)
                places.readable += file.name;
        }
        if (!m_icon.isEmpty() && m_icon != u"-")
            places.written += m_icon;
        places.written += m_reports.paths();
        places.scratch = m_spooled.folders();
        lumora::lockIn(m_console, places);
    }

    ExitStatus validate(const GivenPackage &file)
    {
        if (m_done++ > 0)
            m_console.print(QString());
        const auto result = inspected(file, m_spooled, m_decoder, m_demands, m_wantsModels);
        if (const auto *complaint = std::get_if<Complaint>(&result)) {
            m_console.complain(*complaint);
            m_objects.append(m_console.object(ExitStatus::Unreadable, failureJson(file.name, *complaint), schema));
            m_shown.append(ShownPackage{JudgedPackage{file.name, {}, complaint->line()}, {}, {}, {}, {}});
            return ExitStatus::Unreadable;
        }
        const Inspection &inspection = std::get<Inspection>(result);
        const PackageReport &report = inspection.report;
        complainOfDamage(m_console, file.name, report);
        printLines(file.name, inspection);
        const bool isIconWritten = m_icon.isEmpty() || writeIcon(m_console, file.name, report, m_icon);
        const JudgedPackage judged{file.name, inspection.verdicts(), {}};
        const bool isRefused = !isIconWritten || fails(judged);
        const ExitStatus status = isRefused ? ExitStatus::Refused : ExitStatus::Done;
        if (m_console.form().json || m_reports.isMeant()) {
            const QJsonObject object = wholeJson(file.name, inspection);
            m_shown.append(shownPackage(judged, report, object));
            if (inspection.contents)
                m_shown.last().sizes = sizeTree(inspection.contents->files);
            m_objects.append(m_console.object(status, object, schema));
        }
        return status;
    }

    /// Facts, then what the store finds, then the classic checks.
    void printLines(const QString &name, const Inspection &inspection)
    {
        const QStringList lines = reportLines(name, inspection.report);
        const QStringList found = findingLines(inspection.findings);
        const bool hasHeadings = !inspection.classicCounts || !found.isEmpty();
        const qsizetype facts = std::max<qsizetype>(0, lines.size() - classicLines);
        for (const QString &line : lines.first(facts) + found)
            m_console.print(line);
        if (hasHeadings && found.isEmpty())
            m_console.print(noFindingsLine());
        if (hasHeadings && m_demands.rules != u"store")
            m_console.print(QString(u"  "_s + commandText("CLI_CLASSIC_RULES")));
        if (m_demands.rules != u"store") {
            for (const QString &line : lines.sliced(facts))
                m_console.print(line);
        }
        if (inspection.models) {
            for (const QString &line : runnableModelLines(*inspection.models))
                m_console.print(line);
        }
    }

    bool fails(const JudgedPackage &package) const
    {
        return std::ranges::any_of(package.verdicts, [this](const RuleVerdict &verdict) {
            return countsAsFailure(verdict, m_demands.failOn);
        });
    }

    /// A report that could not be written belongs to no package; it is an error of the last one.
    void refuseLast()
    {
        m_status = std::max(m_status, ExitStatus::Refused);
        if (m_objects.isEmpty())
            return;
        QJsonObject last = m_objects.last().toObject();
        QJsonArray errors = last[u"errors"_s].toArray();
        const QJsonArray more = m_console.object(ExitStatus::Refused, {}, schema)[u"errors"_s].toArray();
        for (const QJsonValue error : more)
            errors.append(error);
        last[u"errors"_s] = errors;
        last[u"ok"_s] = false;
        m_objects.replace(m_objects.size() - 1, last);
    }

    /// One object for one file, an array for several.
    ExitStatus finish()
    {
        if (m_reports.isMeant() && !m_reports.write(m_console, m_shown, m_demands.failOn))
            refuseLast();
        if (m_console.form().json && m_files.size() == 1 && !m_objects.isEmpty())
            m_console.print(QJsonDocument(m_objects.first().toObject()));
        else if (m_console.form().json && m_files.size() > 1)
            m_console.print(QJsonDocument(m_objects));
        return m_console.finish(m_status);
    }

    static constexpr int schema = 2;
    /// The checks at the end of a report's lines.
    static constexpr qsizetype classicLines = 6;

    Console &m_console;
    const QString m_icon;
    const ReportFiles m_reports;
    const bool m_isSandboxed;
    const bool m_wantsModels;
    const StoreDemands m_demands;
    std::vector<GivenPackage> m_files;
    SpooledPackage m_spooled;
    const CmsProfileDecoder m_decoder;
    QJsonArray m_objects;
    QList<ShownPackage> m_shown;
    qsizetype m_done = 0;
    ExitStatus m_status = ExitStatus::Done;
};

/// The files that the command writes, standard output aside.
QStringList writtenFiles(const ValidateArguments &arguments)
{
    QStringList files{arguments.icon, arguments.reports.sarif, arguments.reports.junit, arguments.reports.html};
    files.removeIf([](const QString &file) { return file.isEmpty() || file == u"-"; });
    return files;
}

std::optional<Complaint> misuseOf(const Console &console, const ValidateArguments &arguments)
{
    if (!arguments.icon.isEmpty() && arguments.files.size() > 1)
        return misuse("conflicting-options", commandText("CLI_VALIDATE_ONE_ICON"));
    if (arguments.icon == u"-" && console.form().json)
        return misuse("conflicting-options",
                      commandText("CLI_CONFLICT", {{"[FIRST]", u"--icon -"_s}, {"[SECOND]", u"--json"_s}}));
    if (arguments.reports.takesStdout()) {
        const QStringList places{arguments.icon, arguments.reports.sarif, arguments.reports.junit,
                                 arguments.reports.html};
        if (places.count(u"-"_s) > 1 || console.form().json)
            return misuse("conflicting-options", commandText("CLI_VALIDATE_ONE_STDOUT"));
    }
    if (arguments.icon == u"-" && ::isatty(STDOUT_FILENO) == 1)
        return misuse("terminal", commandText("CLI_TERMINAL_OUTPUT"), commandText("CLI_TERMINAL_OUTPUT_ADVICE"));
    if (const QString file = fileNamedTwice(writtenFiles(arguments)); !file.isEmpty())
        return misuse("given-twice", commandText("CLI_GIVEN_TWICE", {{"[OPTION]", file}}));
    if (arguments.files.count(u"-"_s) > 1)
        return misuse("given-twice", commandText("CLI_GIVEN_TWICE", {{"[OPTION]", u"-"_s}}));
    return {};
}

ExitStatus runValidate(Console &console, const ValidateArguments &arguments)
{
    if (const std::optional<Complaint> problem = misuseOf(console, arguments)) {
        console.complain(*problem);
        return ExitStatus::Usage;
    }
    if (const QString file = fileInPlaceOf(arguments.files, writtenFiles(arguments)); !file.isEmpty()) {
        console.complain({Complaint::Kind::Failure, u"would-replace-source"_s, file,
                          commandText("CLI_VALIDATE_REPLACES"), commandText("CLI_VALIDATE_REPLACES_ADVICE")});
        return ExitStatus::Refused;
    }
    auto demands = arguments.store.demands();
    if (const auto *problem = std::get_if<Complaint>(&demands)) {
        console.complain(*problem);
        return problem->kind == Complaint::Kind::Misuse ? ExitStatus::Usage : ExitStatus::Unreadable;
    }
    if (arguments.icon == u"-" || arguments.reports.takesStdout())
        console.keepStdoutForAFile();
    return Validation(console, arguments, std::get<StoreDemands>(std::move(demands))).run();
}

} // namespace

CommandBody declareValidateCommand(Declaration &declaration)
{
    const auto arguments = std::make_shared<ValidateArguments>();
    declaration.operand("FILE", &arguments->files, "CLI_VALIDATE_FILE").required();
    declaration.option("--icon", &arguments->icon, "OUT.png", "CLI_VALIDATE_ICON").in(ArgumentGroup::Output);
    arguments->reports.declareOn(declaration);
    arguments->store.declareOn(declaration);
    declaration.flag("--devices", &arguments->devices, "CLI_VALIDATE_DEVICES");
    declaration.flag("--no-sandbox", &arguments->noSandbox, "CLI_NO_SANDBOX");
    declaration.explain("CLI_VALIDATE_STATUS");
    declaration.example("lumora validate App.ipa");
    declaration.example("lumora validate App.ipa --icon icon.png --json");
    return [arguments](Console &console) { return runValidate(console, *arguments); };
}

} // namespace lumora
