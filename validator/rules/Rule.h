// SPDX-License-Identifier: MIT
#pragma once

#include "PackageContents.h"

#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>

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

struct Finding
{
    const Rule *rule = nullptr;
    Evidence evidence;
};

/// The rules' findings in the package, errors first, one for each piece of evidence. Rules in `ignored`, given by id or
/// store code, are skipped.
QList<Finding> findingsIn(const PackageContents &contents, const RuleSettings &settings,
                          const QStringList &ignored = {});

} // namespace lumora
