// SPDX-License-Identifier: MIT
#include "ValidateCommand.h"

#include "CommandText.h"
#include "Declaration.h"
#include "Interruption.h"
#include "PackageReportText.h"
#include "SpooledInput.h"
#include "StoreReport.h"
#include "foundation/WholeFile.h"
#include "pictures/PictureOperations.h"
#include "pictures/png/PngEncoder.h"
#include "validator/archive/OpenPackage.h"
#include "validator/bundle/WorkFolder.h"

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
    QString rules = u"auto"_s;
    QString failOn = u"error"_s;
    QStringList ignored;
    QString ignoreFile;
    QString on;
};

/// What is asked of every package.
struct Demands
{
    QString rules;                  ///< "auto", "store", "classic" or "all"
    std::optional<Severity> failOn; ///< the least severe finding that counts; nothing for none
    QStringList ignored;            ///< ids or store codes
    RuleSettings settings;
};

/// A package with all that is known of it.
struct Inspection
{
    PackageReport report;
    std::optional<PackageContents> contents; ///< nothing where only the classic rules are asked for
    QList<Finding> findings;
    bool classicCounts = true;
};

/// A package by the name that messages and results use. "-" is standard input.
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

/// Standard input as a file that can be read back and forth.
class SpooledPackage
{
public:
    Result<std::unique_ptr<PackageSource>> open(const QString &name)
    {
        auto folder = WorkFolder::make();
        if (!folder)
            return folder.failure();
        m_folder = std::move(folder.value());
        const QString path = m_folder->path() + u"/input.ipa"_s;
        const Outcome spooled = spoolDescriptor(STDIN_FILENO, name, path, largestSpooledPackage);
        if (!spooled)
            return spooled.failure();
        return openPackage(path);
    }

private:
    std::unique_ptr<WorkFolder> m_folder;
};

Complaint wordedFailure(const GivenPackage &file, const Failure &failure)
{
    if (!file.isStdin && failure.code == FailureCode::NotAnArchive && !hasPackageName(file.name))
        return {Complaint::Kind::Failure, u"wrong-name"_s, file.name, commandText("CLI_NOT_NAMED_IPA"),
                commandText("CLI_NOT_NAMED_IPA_ADVICE")};
    return complaintOf(Failure{failure.code, file.name, failure.detail});
}

std::variant<Inspection, Complaint> inspected(const GivenPackage &file, const ProfileDecoder &decoder,
                                              const Demands &demands)
{
    SpooledPackage spooled;
    const auto source = file.isStdin ? spooled.open(file.name) : openPackage(file.name);
    if (!source)
        return wordedFailure(file, source.failure());
    Inspection inspection;
    WholeReading reading;
    if (demands.rules == u"classic") {
        reading = source.value()->readAll([](const PackageEntry &) { return nullptr; });
    } else {
        inspection.contents = readPackageContents(*source.value());
        reading = inspection.contents->reading;
    }
    inspection.report = inspectPackage(*source.value(), reading, decoder);
    const Outcome outcome = reportOutcome(inspection.report);
    if (!outcome)
        return wordedFailure(file, outcome.failure());
    if (inspection.contents) {
        const bool isOld = isOfOldTime(*inspection.contents);
        inspection.classicCounts = demands.rules == u"all" || (demands.rules == u"auto" && isOld);
        if (demands.rules != u"auto" || !isOld)
            inspection.findings = findingsIn(*inspection.contents, demands.settings, demands.ignored);
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
        console.print(encodePng(report.artwork.appIcon));
        return true;
    }
    const Outcome saved = saveImage(report.artwork.appIcon, BitmapType::Png, path);
    if (!saved)
        console.complain(saved.failure());
    return saved.ok();
}

/// The files one after another, with what all of them share.
class Validation
{
public:
    Validation(Console &console, const ValidateArguments &arguments, Demands demands)
        : m_console(console), m_icon(arguments.icon), m_demands(std::move(demands))
    {
        for (const QString &file : arguments.files)
            m_files.push_back(givenPackage(file));
    }

    ExitStatus run()
    {
        // A single package is over at once, and standard input may never end: there, a signal ends the program itself.
        std::optional<Interruption> interruption;
        if (m_files.size() > 1 &&
            std::none_of(m_files.begin(), m_files.end(), [](const GivenPackage &file) { return file.isStdin; }))
            interruption.emplace();
        for (const GivenPackage &file : m_files) {
            if (Interruption::isRequested())
                break;
            m_console.note(file.name);
            // "Could not be read" outranks "something is invalid", which outranks "all is well".
            m_status = std::max(m_status, validate(file));
        }
        if (m_done < std::ssize(m_files)) {
            m_console.complain(Interruption::complaint(m_done, std::ssize(m_files)));
            m_status = Interruption::status();
        }
        return finish();
    }

private:
    ExitStatus validate(const GivenPackage &file)
    {
        if (m_done++ > 0)
            m_console.print(QString());
        const auto result = inspected(file, m_decoder, m_demands);
        if (const auto *complaint = std::get_if<Complaint>(&result)) {
            m_console.complain(*complaint);
            m_objects.append(m_console.object(ExitStatus::Unreadable, failureJson(file.name, *complaint), schema));
            return ExitStatus::Unreadable;
        }
        const Inspection &inspection = std::get<Inspection>(result);
        const PackageReport &report = inspection.report;
        complainOfDamage(m_console, file.name, report);
        printLines(file.name, inspection);
        const bool isIconWritten = m_icon.isEmpty() || writeIcon(m_console, file.name, report, m_icon);
        const bool isRefused =
            !isIconWritten || failsByFindings(inspection) || (inspection.classicCounts && !allJudgedValid(report));
        const ExitStatus status = isRefused ? ExitStatus::Refused : ExitStatus::Done;
        QJsonObject object = reportJson(file.name, report);
        const QJsonObject store = storeJson(inspection.contents.value_or(PackageContents()), inspection.findings);
        for (auto member = store.begin(); member != store.end(); ++member)
            object.insert(member.key(), member.value());
        m_objects.append(m_console.object(status, object, schema));
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
            m_console.print(u"  valid    the store's rules"_s);
        if (m_demands.rules == u"store")
            return;
        if (hasHeadings)
            m_console.print(u"  iOS 7 rules"_s);
        for (const QString &line : lines.sliced(facts))
            m_console.print(line);
    }

    bool failsByFindings(const Inspection &inspection) const
    {
        return m_demands.failOn && std::ranges::any_of(inspection.findings, [&](const Finding &finding) {
                   return finding.rule->severity >= *m_demands.failOn;
               });
    }

    /// One object for one file, an array for several.
    ExitStatus finish()
    {
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
    const Demands m_demands;
    std::vector<GivenPackage> m_files;
    const CmsProfileDecoder m_decoder;
    QJsonArray m_objects;
    qsizetype m_done = 0;
    ExitStatus m_status = ExitStatus::Done;
};

std::optional<Complaint> misuseOf(const Console &console, const ValidateArguments &arguments)
{
    if (!arguments.icon.isEmpty() && arguments.files.size() > 1)
        return misuse("conflicting-options", commandText("CLI_VALIDATE_ONE_ICON"));
    if (arguments.icon == u"-" && console.form().json)
        return misuse("conflicting-options",
                      commandText("CLI_CONFLICT", {{"[FIRST]", u"--icon -"_s}, {"[SECOND]", u"--json"_s}}));
    if (arguments.icon == u"-" && ::isatty(STDOUT_FILENO) == 1)
        return misuse("terminal", commandText("CLI_TERMINAL_OUTPUT"), commandText("CLI_TERMINAL_OUTPUT_ADVICE"));
    if (arguments.files.count(u"-"_s) > 1)
        return misuse("given-twice", commandText("CLI_GIVEN_TWICE", {{"[OPTION]", u"-"_s}}));
    return {};
}

/// Ids out of a file, one a line; what follows a "#" is a remark.
Result<QStringList> idsInFile(const QString &path)
{
    constexpr qint64 largest = 1 << 20;
    const auto bytes = readWholeFile(path, largest);
    if (!bytes)
        return bytes.failure();
    QStringList ids;
    for (const QString &line : QString::fromUtf8(bytes.value()).split(u'\n')) {
        const QString id = line.section(u'#', 0, 0).trimmed();
        if (!id.isEmpty())
            ids += id;
    }
    return ids;
}

std::variant<Demands, Complaint> demandsOf(const ValidateArguments &arguments)
{
    Demands demands{arguments.rules, Severity::Error, arguments.ignored, {}};
    if (arguments.failOn == u"warning")
        demands.failOn = Severity::Warning;
    else if (arguments.failOn == u"never")
        demands.failOn = std::nullopt;
    if (!arguments.ignoreFile.isEmpty()) {
        const auto ids = idsInFile(arguments.ignoreFile);
        if (!ids)
            return complaintOf(ids.failure());
        demands.ignored += ids.value();
    }
    for (const QString &id : demands.ignored) {
        if (ruleNamed(id) == nullptr)
            return misuse("unknown-rule", commandText("CLI_UNKNOWN_RULE", {{"[RULE]", quoted(id)}}));
    }
    demands.settings.on = arguments.on.isEmpty() ? QDate::currentDate() : QDate::fromString(arguments.on, Qt::ISODate);
    if (!demands.settings.on.isValid())
        return misuse("not-a-date", commandText("CLI_NOT_A_DATE", {{"[DATE]", quoted(arguments.on)}}));
    return demands;
}

ExitStatus runValidate(Console &console, const ValidateArguments &arguments)
{
    if (const std::optional<Complaint> problem = misuseOf(console, arguments)) {
        console.complain(*problem);
        return ExitStatus::Usage;
    }
    auto demands = demandsOf(arguments);
    if (const auto *problem = std::get_if<Complaint>(&demands)) {
        console.complain(*problem);
        return ExitStatus::Usage;
    }
    if (arguments.icon == u"-")
        console.keepStdoutForAFile();
    return Validation(console, arguments, std::get<Demands>(std::move(demands))).run();
}

} // namespace

CommandBody declareValidateCommand(Declaration &declaration)
{
    const auto arguments = std::make_shared<ValidateArguments>();
    declaration.operand("FILE", &arguments->files, "CLI_VALIDATE_FILE").required();
    declaration.option("--icon", &arguments->icon, "OUT.png", "CLI_VALIDATE_ICON").in(ArgumentGroup::Output);
    declaration.option("--rules", &arguments->rules, "RULES", "CLI_VALIDATE_RULES")
        .words({u"auto"_s, u"store"_s, u"classic"_s, u"all"_s});
    declaration.option("--fail-on", &arguments->failOn, "SEVERITY", "CLI_VALIDATE_FAIL_ON")
        .words({u"error"_s, u"warning"_s, u"never"_s});
    declaration.option("--ignore", &arguments->ignored, "ID", "CLI_VALIDATE_IGNORE").list();
    declaration.option("--ignore-file", &arguments->ignoreFile, "FILE", "CLI_VALIDATE_IGNORE_FILE");
    declaration.option("--on", &arguments->on, "DATE", "CLI_VALIDATE_ON");
    declaration.explain("CLI_VALIDATE_STATUS");
    declaration.example("lumora validate App.ipa");
    declaration.example("lumora validate App.ipa --icon icon.png --json");
    return [arguments](Console &console) { return runValidate(console, *arguments); };
}

} // namespace lumora
