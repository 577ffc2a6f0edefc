// SPDX-License-Identifier: MIT
#pragma once

#include "cli/console/Complaint.h"
#include "validator/rules/Rule.h"

#include <QStringList>

#include <optional>
#include <variant>

namespace lumora
{

class Declaration;

/// What is asked of every package.
struct StoreDemands
{
    QString rules;                  ///< "auto", "store", "classic" or "all"
    std::optional<Severity> failOn; ///< the least severe finding that counts; nothing for none
    QStringList ignored;            ///< ids or store codes
    RuleSettings settings;
};

/// The options that say by which rules packages are judged, as they are typed.
struct StoreArguments
{
    QString rules = QStringLiteral("auto");
    QString failOn = QStringLiteral("error");
    QStringList ignored;
    QString ignoreFile;
    QString on;

    void declareOn(Declaration &declaration);
    /// Reads the file of ignored rules, too. A rule that does not exist is a wrong call, wherever it is named.
    std::variant<StoreDemands, Complaint> demands() const;
};

/// What to judge for on the day that is typed, or today where none is.
std::variant<RuleSettings, Complaint> settingsFor(const QString &day);

/// What is wrong with the ids or store codes, if one of them names no rule; `file` is where they were read, if any.
std::optional<Complaint> unknownRule(const QStringList &ids, const QString &file = {});

} // namespace lumora
