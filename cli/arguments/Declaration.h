// SPDX-License-Identifier: MIT
#pragma once

#include "Argument.h"
#include "cli/console/Console.h"

#include <deque>
#include <vector>

namespace lumora
{

/// What a command takes: filled in by the command, read by the parser, the help and the tests of both. Every command
/// has --json, --quiet, --verbose, --help and --version without asking.
///
///     declaration.operand("SOURCE", &arguments->source, "CLI_ICONS_SOURCE");
///     declaration.option("--size", &arguments->sizes, "N", "CLI_ICON_SIZE").range(1, 1024).list().required();
///     declaration.flag("--example", &arguments->example, "CLI_EXAMPLE");
///     declaration.exactlyOne({"SOURCE", "--example"});
///     declaration.example("lumora icon logo.png --size 180 --to build");
///
/// Texts are keys of resources/strings. The targets have to live as long as the declaration.
class Declaration
{
public:
    explicit Declaration(QString commandName);
    Declaration(const Declaration &) = delete;
    Declaration &operator=(const Declaration &) = delete;

    Argument &flag(const char *name, bool *target, const char *textKey);
    Argument &option(const char *name, Argument::Target target, const char *placeholder, const char *textKey);
    /// Operands are filled in the order of their declaration; one with a `QStringList` takes all that follow.
    Argument &operand(const char *name, Argument::Target target, const char *textKey);
    /// Of these (options or operands, by their names) exactly one has to be given.
    void exactlyOne(const QStringList &names);
    /// Of these, one at most may be given.
    void atMostOne(const QStringList &names);
    /// A whole command line for the end of the help; two for each command. A test runs each.
    void example(const char *line);
    /// A paragraph for the help, below the usage.
    void explain(const char *textKey);

    struct Choice
    {
        QStringList names;
        bool isRequired = true;
    };

    const QString &commandName() const { return m_commandName; }
    /// Addresses stay as they are while more are declared.
    const std::deque<Argument> &arguments() const { return m_arguments; }
    const std::vector<Choice> &choices() const { return m_choices; }
    const QStringList &examples() const { return m_examples; }
    const std::vector<const char *> &explanations() const { return m_explanations; }
    const ConsoleForm &form() const { return m_form; }

    /// The option or operand of that name, or the option of that letter; nullptr where there is none.
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
