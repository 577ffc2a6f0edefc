// SPDX-License-Identifier: MIT
#pragma once

#include "PackageContents.h"

#include <QDate>
#include <QList>
#include <QString>

#include <span>

namespace lumora
{

enum class Severity { Note, Warning, Error };

/// What was found, and where in the package.
struct Evidence
{
    QString path;
    QString text;
};

/// What a rule comes to for one package.
struct Judgement
{
    enum State { Holds, Broken, NotApplicable, Unknown };

    State state = Holds;
    QList<Evidence> evidence; ///< of what is broken
    QString reason;           ///< why the rule does not apply or cannot be known
};

/// What a judgement takes for granted.
struct RuleSettings
{
    QDate on; ///< the day that rules with a date are judged for
};

/// A rule of the store, as a row.
struct Rule
{
    const char *id;
    const char *code; ///< of the store's own message; empty where it has none
    Severity severity;
    const char *title;
    const char *rule;
    const char *fix;
    const char *source;
    const char *since; ///< year and month, or empty for a rule without a date
    Judgement (*judge)(const PackageContents &, const RuleSettings &);
};

/// Every rule, in the order in which they are listed.
std::span<const Rule> allRules();

/// Null when no rule has the id or the store code.
const Rule *ruleNamed(const QString &name);

/// "error", "warning", "note".
QString severityName(Severity severity);

/// True for an app of the time before these rules: built with an SDK before iOS 8, or with none that is named.
bool isOfOldTime(const PackageContents &contents);

struct Finding
{
    const Rule *rule = nullptr;
    Evidence evidence;
};

/// What the rules find in the package, errors first, each piece of evidence on its own. Rules that are named in
/// `ignored`, by id or store code, are not asked.
QList<Finding> findingsIn(const PackageContents &contents, const RuleSettings &settings,
                          const QStringList &ignored = {});

} // namespace lumora
