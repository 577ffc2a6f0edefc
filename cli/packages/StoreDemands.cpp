// SPDX-License-Identifier: MIT
#include "StoreDemands.h"

#include "cli/arguments/ArgumentParser.h"
#include "cli/arguments/Declaration.h"
#include "cli/arguments/Suggestion.h"
#include "cli/console/CommandText.h"
#include "foundation/WholeFile.h"

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

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

} // namespace

void StoreArguments::declareOn(Declaration &declaration)
{
    declaration.option("--rules", &rules, "RULES", "CLI_VALIDATE_RULES")
        .words({u"auto"_s, u"store"_s, u"classic"_s, u"all"_s});
    declaration.option("--fail-on", &failOn, "SEVERITY", "CLI_VALIDATE_FAIL_ON")
        .words({u"error"_s, u"warning"_s, u"never"_s});
    declaration.option("--ignore", &ignored, "ID", "CLI_VALIDATE_IGNORE").list();
    declaration.option("--ignore-file", &ignoreFile, "FILE", "CLI_VALIDATE_IGNORE_FILE");
    declaration.option("--on", &on, "DATE", "CLI_VALIDATE_ON");
}

std::variant<StoreDemands, Complaint> StoreArguments::demands() const
{
    StoreDemands demands{rules, Severity::Error, ignored, {}};
    if (failOn == u"warning")
        demands.failOn = Severity::Warning;
    else if (failOn == u"never")
        demands.failOn = std::nullopt;
    if (const auto problem = unknownRule(ignored, {}))
        return *problem;
    if (!ignoreFile.isEmpty()) {
        const auto ids = idsInFile(ignoreFile);
        if (!ids)
            return complaintOf(ids.failure());
        if (const auto problem = unknownRule(ids.value(), ignoreFile))
            return *problem;
        demands.ignored += ids.value();
    }
    const std::variant<RuleSettings, Complaint> settings = settingsFor(on);
    if (const auto *problem = std::get_if<Complaint>(&settings))
        return *problem;
    demands.settings = std::get<RuleSettings>(settings);
    return demands;
}

std::variant<RuleSettings, Complaint> settingsFor(const QString &day)
{
    const RuleSettings settings{day.isEmpty() ? QDate::currentDate() : QDate::fromString(day, Qt::ISODate)};
    if (!settings.on.isValid())
        return misuse("not-a-date", commandText("CLI_NOT_A_DATE", {{"[DATE]", quoted(day)}}));
    return settings;
}

std::optional<Complaint> unknownRule(const QStringList &ids, const QString &file)
{
    for (const QString &id : ids) {
        if (ruleNamed(id) != nullptr)
            continue;
        Complaint complaint = misuse("unknown-rule", commandText("CLI_UNKNOWN_RULE", {{"[RULE]", quoted(id)}}),
                                     didYouMean(nearestWords(id, ruleNames())));
        complaint.path = file;
        return complaint;
    }
    return std::nullopt;
}

} // namespace lumora
