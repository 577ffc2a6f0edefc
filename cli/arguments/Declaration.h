// SPDX-License-Identifier: MIT
#pragma once

#include "Argument.h"
#include "cli/console/Console.h"

#include <deque>
#include <vector>

namespace lumora
{

/// The arguments of a command: filled in by the command, read by the parser, the help and the tests of both. Every
/// command has --json, --quiet, --verbose, --help and --version without declaring them.
///
///     declaration.operand("SOURCE", &arguments->source, "CLI_ICONS_SOURCE");
///     declaration.option("--size", &arguments->sizes, "N", "CLI_ICON_SIZE").range(1, 1024).list().required();
///     declaration.flag("--example", &arguments->example, "CLI_EXAMPLE");
///     declaration.exactlyOne({"SOURCE", "--example"});
///     declaration.example("lumora icon logo.png --size 180 --to build");
///
/// Texts are keys of resources/strings. The targets must live as long as the declaration.
class Declaration
{
public:
    explicit Declaration(QString commandName);
    Declaration(const Declaration &) = delete;
    Declaration &operator=(const Declaration &) = delete;

    Argument &flag(const char *name, bool *target, const char *textKey);
    Argument &option(const char *name, Argument::Target target, const char *placeholder, const char *textKey);
    /// Operands are filled in the order of their declaration; one with a `QStringList` takes all remaining words.
    Argument &operand(const char *name, Argument::Target target, const char *textKey);
    /// Exactly one of these (options or operands, by their names) must be given.
    void exactlyOne(const QStringList &names);
    /// At least one of these must be given.
    void atLeastOne(const QStringList &names);
    /// At most one of these may be given.
    void atMostOne(const QStringList &names);
    /// A whole command line for the end of the help; each command has two. A test runs each.
    void example(const char *line);
    /// Adds a paragraph to the help, below the usage.
    void explain(const char *textKey);

    struct Choice
    {
        QStringList names;
        bool isRequired = true;
        bool isExclusive = true;
    };

    const QString &commandName() const { return m_commandName; }
    /// A deque, so that addresses stay valid while more are declared.
    const std::deque<Argument> &arguments() const { return m_arguments; }
    const std::vector<Choice> &choices() const { return m_choices; }
    const QStringList &examples() const { return m_examples; }
    const std::vector<const char *> &explanations() const { return m_explanations; }
    const ConsoleForm &form() const { return m_form; }

    /// The option or operand of that name, or the option of that letter; nullptr if there is none.
    Argument *named(QStringView name);
    const Argument *named(QStringView name) const;
    Argument *lettered(QChar letter);
    /// The names of all options.
    QStringList optionNames() const;

private:
    Argument &add(Argument argument);

    QString m_commandName;
    std::deque<Argument> m_arguments;
    std::vector<Choice> m_choices;
    QStringList m_examples;
    std::vector<const char *> m_explanations;
    ConsoleForm m_form;
};

} // namespace lumora
