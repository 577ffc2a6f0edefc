// SPDX-License-Identifier: MIT
#include "RulesCommand.h"

#include "StoreDemands.h"
#include "cli/arguments/Declaration.h"
#include "cli/console/CommandText.h"
#include "cli/console/Console.h"
#include "resources/Resources.h"
#include "validator/rules/Rule.h"
#include "validator/rules/Wording.h"

#include <QCoreApplication>
#include <QJsonArray>

#include <array>
#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

struct RulesArguments
{
    QStringList ids;
    bool markdown = false;
};

QString text(const char *part)
{
    return QString::fromUtf8(part);
}

/// Each part of a rule by its name, the empty ones left out.
QList<std::pair<QString, QString>> partsOf(const Rule &rule)
{
    QList<std::pair<QString, QString>> parts{{u"id"_s, text(rule.id)},
                                             {u"code"_s, text(rule.code)},
                                             {u"severity"_s, severityName(rule.severity)},
                                             {u"title"_s, worded(rule.title)},
                                             {u"rule"_s, worded(rule.rule)},
                                             {u"fix"_s, worded(rule.fix)},
                                             {u"source"_s, worded(rule.source)},
                                             {u"since"_s, text(rule.since)}};
    parts.removeIf([](const auto &part) { return part.second.isEmpty(); });
    return parts;
}

QJsonObject ruleJson(const Rule &rule)
{
    QJsonObject object{{u"code"_s, QJsonValue()}, {u"since"_s, QJsonValue()}};
    for (const auto &[name, value] : partsOf(rule))
        object.insert(name, value);
    return object;
}

/// "error    icon-phone (ITMS-90022): No icon for the iPhone"
QString listLine(const Rule &rule)
{
    constexpr int severityWidth = 9;
    const QString code = text(rule.code);
    return severityWord(rule.severity).leftJustified(severityWidth) + text(rule.id) +
           (code.isEmpty() ? QString() : QString(u" ("_s + code + u')')) + u": "_s + worded(rule.title);
}

/// The part's name in the user's language.
QString partName(const QString &part)
{
    static constexpr std::pair<QLatin1StringView, const char *> names[] = {
        {"severity"_L1, "CLI_RULES_SEVERITY"}, {"title"_L1, "CLI_RULES_TITLE"},   {"rule"_L1, "CLI_RULES_RULE"},
        {"fix"_L1, "CLI_RULES_FIX"},           {"source"_L1, "CLI_RULES_SOURCE"}, {"since"_L1, "CLI_RULES_SINCE"},
    };
    for (const auto &[name, key] : names) {
        if (part == name)
            return worded(key);
    }
    return part;
}

void printInFull(Console &console, const Rule &rule)
{
    constexpr int nameWidth = 10;
    for (const auto &[name, value] : partsOf(rule)) {
        const bool isSeverity = name == u"severity";
        console.print(
            QString(partName(name).leftJustified(nameWidth) + (isSeverity ? severityWord(rule.severity) : value)));
    }
}

/// What the store judges, too, but not by the package alone.
struct UnknownToThePackage
{
    const char *codes;
    const char *reason;
};

constexpr UnknownToThePackage unknowns[] = {
    {"ITMS-90062 ITMS-90186 ITMS-90189", "UNJUDGED_VERSIONS"},
    {"ITMS-90338", "UNJUDGED_PRIVATE_NAMES"},
    {"ITMS-90035 ITMS-90161", "UNJUDGED_REVOCATION"},
    {"ITMS-90046", "UNJUDGED_ENTITLEMENTS"},
    {"ITMS-91056", "UNJUDGED_DATA_KINDS"},
};

QStringList codesOf(const UnknownToThePackage &unknown)
{
    return text(unknown.codes).split(u' ');
}

/// Null for a code of a rule.
const UnknownToThePackage *unknownNamed(const QString &code)
{
    if (ruleNamed(code) != nullptr)
        return nullptr;
    for (const UnknownToThePackage &each : unknowns) {
        if (codesOf(each).contains(code, Qt::CaseInsensitive))
            return &each;
    }
    return nullptr;
}

/// The page of the documents, the same on every system.
void printPage(Console &console)
{
    installTexts(*QCoreApplication::instance(), QLocale(QLocale::English), ToolkitTexts::LeaveOut);
    console.print(u"# What `lumora validate` asks of a package"_s);
    console.print(QString());
    console.print(u"Written by `lumora rules --markdown`. Leave a rule out with `--ignore ID`."_s);
    constexpr std::array<std::pair<Severity, const char *>, 3> headings{
        {{Severity::Error, "Errors"}, {Severity::Warning, "Warnings"}, {Severity::Note, "Notes"}}};
    for (const auto &[severity, heading] : headings) {
        console.print(QString(u"\n## "_s + text(heading)));
        for (const Rule &rule : allRules()) {
            if (rule.severity != severity)
                continue;
            const QString code = text(rule.code);
            const QString since = text(rule.since);
            console.print(QString(u"\n### "_s + worded(rule.title)));
            console.print(QString(u"\n`"_s + text(rule.id) + u'`' +
                                  (code.isEmpty() ? QString() : QString(u" · "_s + code)) +
                                  (since.isEmpty() ? QString() : QString(u" · since "_s + since))));
            console.print(QString(u'\n' + worded(rule.rule) + u' ' + worded(rule.fix)));
            console.print(QString(u"\nSource: "_s + worded(rule.source)));
        }
    }
    console.print(u"\n## What the package alone does not tell"_s);
    console.print(u"\nThe store also judges by what is not in the file. No rule asks for it:\n"_s);
    for (const UnknownToThePackage &each : unknowns)
        console.print(QString(u"- "_s + codesOf(each).join(u", "_s) + u": "_s + worded(each.reason)));
}

ExitStatus runRules(Console &console, const RulesArguments &arguments)
{
    QStringList ids;
    for (const QString &id : arguments.ids) {
        if (const UnknownToThePackage *unknown = unknownNamed(id))
            console.print(QString(id + u": "_s + worded(unknown->reason)));
        else
            ids += id;
    }
    if (ids.isEmpty() && !arguments.ids.isEmpty())
        return console.finish(ExitStatus::Done, {{u"rules"_s, QJsonArray()}});
    if (const std::optional<Complaint> problem = unknownRule(ids)) {
        console.complain(*problem);
        return console.finish(ExitStatus::Usage);
    }
    if (arguments.markdown) {
        printPage(console);
        return console.finish(ExitStatus::Done);
    }
    QList<const Rule *> rules;
    for (const QString &id : std::as_const(ids))
        rules += ruleNamed(id);
    if (rules.isEmpty()) {
        for (const Rule &rule : allRules())
            rules += &rule;
    }
    QJsonArray array;
    for (const Rule *rule : rules) {
        if (ids.isEmpty()) {
            console.print(listLine(*rule));
        } else {
            if (!array.isEmpty())
                console.print(QString());
            printInFull(console, *rule);
        }
        array += ruleJson(*rule);
    }
    return console.finish(ExitStatus::Done, {{u"rules"_s, array}});
}

} // namespace

CommandBody declareRulesCommand(Declaration &declaration)
{
    const auto arguments = std::make_shared<RulesArguments>();
    declaration.operand("ID", &arguments->ids, "CLI_RULES_ID");
    declaration.flag("--markdown", &arguments->markdown, "CLI_RULES_MARKDOWN");
    declaration.atMostOne({u"ID"_s, u"--markdown"_s});
    declaration.atMostOne({u"--markdown"_s, u"--json"_s});
    declaration.example("lumora rules");
    declaration.example("lumora rules seal ITMS-90022");
    return [arguments](Console &console) { return runRules(console, *arguments); };
}

} // namespace lumora
