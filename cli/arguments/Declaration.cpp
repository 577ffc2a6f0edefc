// SPDX-License-Identifier: MIT
#include "Declaration.h"

#include <algorithm>
#include <utility>

namespace lumora
{

Declaration::Declaration(QString commandName) : m_commandName(std::move(commandName))
{
    flag("--json", &m_form.json, "CLI_JSON").in(ArgumentGroup::General);
    flag("--quiet", &m_form.quiet, "CLI_QUIET").letter(u'q').in(ArgumentGroup::General);
    flag("--verbose", &m_form.verbose, "CLI_VERBOSE").letter(u'v').in(ArgumentGroup::General);
    flag("--help", nullptr, "CLI_HELP").letter(u'h').in(ArgumentGroup::General);
    flag("--version", nullptr, "CLI_VERSION").letter(u'V').in(ArgumentGroup::General);
    atMostOne({QStringLiteral("--quiet"), QStringLiteral("--verbose")});
}

Argument &Declaration::flag(const char *name, bool *target, const char *textKey)
{
    Argument argument;
    argument.name = QString::fromLatin1(name);
    argument.textKey = textKey;
    argument.target = target;
    return add(std::move(argument));
}

Argument &Declaration::option(const char *name, Argument::Target target, const char *placeholder, const char *textKey)
{
    Argument argument;
    argument.name = QString::fromLatin1(name);
    argument.placeholder = QString::fromLatin1(placeholder);
    argument.textKey = textKey;
    argument.target = target;
    return add(std::move(argument));
}

Argument &Declaration::operand(const char *name, Argument::Target target, const char *textKey)
{
    Argument argument;
    argument.name = QString::fromLatin1(name);
    argument.placeholder = argument.name;
    argument.textKey = textKey;
    argument.target = target;
    argument.group = ArgumentGroup::Operand;
    return add(std::move(argument));
}

void Declaration::exactlyOne(const QStringList &names)
{
    m_choices.push_back({names, true});
}

void Declaration::atLeastOne(const QStringList &names)
{
    m_choices.push_back({names, true, false});
}

void Declaration::atMostOne(const QStringList &names)
{
    m_choices.push_back({names, false});
}

void Declaration::example(const char *line)
{
    m_examples << QString::fromUtf8(line);
}

void Declaration::explain(const char *textKey)
{
    m_explanations.push_back(textKey);
}

Argument *Declaration::named(QStringView name)
{
    const auto found = std::find_if(m_arguments.begin(), m_arguments.end(),
                                    [name](const Argument &argument) { return argument.name == name; });
    return found == m_arguments.end() ? nullptr : &*found;
}

const Argument *Declaration::named(QStringView name) const
{
    return const_cast<Declaration *>(this)->named(name);
}

Argument *Declaration::lettered(QChar letter)
{
    const auto found = std::find_if(m_arguments.begin(), m_arguments.end(),
                                    [letter](const Argument &argument) { return argument.shortName == letter; });
    return found == m_arguments.end() || letter.isNull() ? nullptr : &*found;
}

QStringList Declaration::optionNames() const
{
    QStringList names;
    for (const Argument &argument : m_arguments) {
        if (!argument.isOperand())
            names << argument.name;
    }
    return names;
}

Argument &Declaration::add(Argument argument)
{
    m_arguments.push_back(std::move(argument));
    return m_arguments.back();
}

} // namespace lumora
