// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <variant>

namespace lumora
{

/// Under which heading of the help an option is listed.
enum class ArgumentGroup { Operand, Command, Output, General };

/// One option or operand of a command: where its value goes, what is accepted, and how the help explains it. The kind
/// of the target decides what is read:
///
///     bool *                 a flag, without a value
///     QString *              a text or path, once
///     QStringList *          texts or paths, given several times (an operand takes all that are left)
///     std::optional<int> *   a whole number, once
///     QList<int> *           whole numbers, given several times
///
/// An empty value is refused everywhere.
struct Argument
{
    using Target = std::variant<std::monostate, bool *, QString *, QStringList *, std::optional<int> *, QList<int> *>;

    QString name;        ///< "--size", or what an operand is called: "SOURCE"
    QString placeholder; ///< what the help calls the value: "DIR"; empty for a flag
    const char *textKey = nullptr;
    Target target;
    ArgumentGroup group = ArgumentGroup::Command;

    QChar shortName; ///< 'o' for -o
    QStringList choices;
    bool isRequired = false;
    bool isCommaList = false;
    int least = 0;
    int most = 0;
    bool isGiven = false; ///< set when the command line is read

    /// Adds a letter: `.letter(u'o')` accepts -o.
    Argument &letter(char16_t character);
    /// The only accepted words. The complaint about another word has this list and the nearest of them.
    Argument &words(const QStringList &accepted);
    /// The smallest and the largest accepted number. A number beyond them is refused (status 1); a text that is not a
    /// whole number is a wrong call (status 2).
    Argument &range(int smallest, int largest);
    /// Takes several values separated by commas, with or without spaces.
    Argument &list();
    Argument &required();
    Argument &in(ArgumentGroup heading);

    bool isFlag() const { return std::holds_alternative<bool *>(target) || target.index() == 0; }
    bool isOperand() const { return group == ArgumentGroup::Operand; }
    /// May be given more than once.
    bool isRepeatable() const;
    /// "--size N", as usage lines and messages name it.
    QString spelled() const;
};

} // namespace lumora
