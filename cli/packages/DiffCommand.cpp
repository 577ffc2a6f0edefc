// SPDX-License-Identifier: MIT
#include "DiffCommand.h"

#include "DifferenceReport.h"
#include "PackageComplaint.h"
#include "PackageLock.h"
#include "StoreDemands.h"
#include "cli/arguments/Declaration.h"
#include "cli/console/CommandText.h"
#include "cli/console/Console.h"
#include "foundation/ProcessLock.h"
#include "validator/archive/OpenPackage.h"

#include <algorithm>
#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

struct DiffArguments
{
    QString before;
    QString after;
    QString on;
    QString failOn = u"never"_s;
    bool noSandbox = false;
};

/// Whether the new package breaks a rule that counts, where the old one did not.
bool isWorse(const PackageDifference &difference, const QString &failOn)
{
    if (failOn == u"never")
        return false;
    const Severity least = failOn == u"warning" ? Severity::Warning : Severity::Error;
    return std::ranges::any_of(difference.gained,
                               [least](const Finding &finding) { return finding.rule->severity >= least; });
}

/// The package with what the rules find in it.
Result<ComparedPackage> compared(const QString &file, const RuleSettings &settings)
{
    const auto source = openPackage(file);
    if (!source)
        return Failure{source.failure().code, file, source.failure().detail};
    ComparedPackage package{readPackageContents(*source.value()), {}};
    if (const std::optional<Failure> &failure = package.contents.reading.failure)
        return Failure{failure->code, file, failure->detail};
    if (package.contents.app() == nullptr)
        return Failure{FailureCode::MissingContent, file, "DETAIL_NO_APP"};
    package.findings = findingsIn(package.contents, settings);
    return package;
}

ExitStatus runDiff(Console &console, const DiffArguments &arguments)
{
    const std::variant<RuleSettings, Complaint> settings = settingsFor(arguments.on);
    if (const auto *problem = std::get_if<Complaint>(&settings)) {
        console.complain(*problem);
        return console.finish(ExitStatus::Usage);
    }
    if (arguments.noSandbox)
        console.note(commandText("CLI_SANDBOX_OFF"));
    else
        lockIn(console, {{arguments.before, arguments.after}, {}, {}});
    const Result<ComparedPackage> before = compared(arguments.before, std::get<RuleSettings>(settings));
    const Result<ComparedPackage> after = compared(arguments.after, std::get<RuleSettings>(settings));
    for (const Result<ComparedPackage> *each : {&before, &after}) {
        if (!*each)
            console.complain(packageComplaint(each->failure().subject, each->failure()));
    }
    if (!before || !after)
        return console.finish(ExitStatus::Unreadable);
    const PackageDifference difference = differenceBetween(before.value(), after.value());
    for (const QString &line : differenceLines(arguments.before, arguments.after, difference))
        console.print(line);
    QJsonObject result = differenceJson(difference);
    result.insert(u"old"_s, arguments.before);
    result.insert(u"new"_s, arguments.after);
    return console.finish(isWorse(difference, arguments.failOn) ? ExitStatus::Refused : ExitStatus::Done, result);
}

} // namespace

CommandBody declareDiffCommand(Declaration &declaration)
{
    const auto arguments = std::make_shared<DiffArguments>();
    declaration.operand("OLD", &arguments->before, "CLI_DIFF_OLD").required();
    declaration.operand("NEW", &arguments->after, "CLI_DIFF_NEW").required();
    declaration.option("--fail-on", &arguments->failOn, "SEVERITY", "CLI_DIFF_FAIL_ON")
        .words({u"error"_s, u"warning"_s, u"never"_s});
    declaration.option("--on", &arguments->on, "DATE", "CLI_VALIDATE_ON");
    declaration.flag("--no-sandbox", &arguments->noSandbox, "CLI_NO_SANDBOX");
    declaration.example("lumora diff App.ipa build/App.ipa");
    declaration.example("lumora diff App.ipa build/App.ipa --json");
    return [arguments](Console &console) { return runDiff(console, *arguments); };
}

} // namespace lumora
