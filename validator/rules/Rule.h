// SPDX-License-Identifier: MIT
#pragma once

#include "PackageContents.h"

#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <span>

namespace lumora
{

enum class Severity { Note, Warning, Error };

/// A finding, and its place in the package.
struct Evidence
{
    QString path;
    QString text;
};

/// The result of a rule for one package.
struct Judgement
{
    enum State { Holds, Broken, NotApplicable, Unknown };

    State state = Holds;
    QList<Evidence> evidence; ///< evidence of a broken rule
    QString reason;           ///< why the rule does not apply or cannot be known
};

/// The assumptions of a judgement.
struct RuleSettings
{
    QDate on; ///< the day for which rules with a date are judged
};

/// A rule of the store, as a row.
struct Rule
{
    const char *id;
    const char *code; ///< of the store's own message; empty if it has none
    Severity severity;
    const char *title;
    const char *rule;
    const char *fix;
    const char *source;
    const char *since; ///< year and month, or empty for a rule without a date
    Judgement (*judge)(const PackageContents &, const RuleSettings &);
};

/// All rules, in the order of listing.
std::span<const Rule> allRules();

/// Null when no rule has the id or the store code.
const Rule *ruleNamed(const QString &name);

/// All ids, then all store codes.
QStringList ruleNames();

/// "error", "warning", "note".
QString severityName(Severity severity);

/// True for an app of the time before these rules: built with an SDK before iOS 8, or with none that is named.
bool isOfOldTime(const PackageContents &contents);

/// A rule that was asked, and what it came to.
struct RuleVerdict
{
    const Rule *rule = nullptr;
    Judgement judgement;
};

/// Every rule asked of the package, in their order, but those that are named in `ignored` by id or store code. None
/// where the package holds no app.
QList<RuleVerdict> verdictsOn(const PackageContents &contents, const RuleSettings &settings,
                              const QStringList &ignored = {});

/// Whether the rule is broken and as severe as the least severe that counts; nothing counts where none is given.
bool countsAsFailure(const RuleVerdict &verdict, std::optional<Severity> failOn);

struct Finding
{
    const Rule *rule = nullptr;
    Evidence evidence;
};

/// What is broken, errors first, one finding for each piece of evidence.
QList<Finding> findingsAmong(const QList<RuleVerdict> &verdicts);

/// The rules' findings in the package. Rules in `ignored`, given by id or store code, are skipped.
QList<Finding> findingsIn(const PackageContents &contents, const RuleSettings &settings,
                          const QStringList &ignored = {});

} // namespace lumora
