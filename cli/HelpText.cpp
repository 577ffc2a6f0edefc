// SPDX-License-Identifier: MIT
#include "HelpText.h"

#include "cli/arguments/Declaration.h"
#include "cli/commands/CommandTable.h"
#include "cli/console/CommandText.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// The words of the text in lines, each indented by `indent` spaces.
QString wrapped(const QString &text, qsizetype indent, qsizetype firstColumn)
{
    QString lines;
    qsizetype column = firstColumn;
    bool isLineStart = true;
    for (const QString &word : text.split(u' ', Qt::SkipEmptyParts)) {
        if (!isLineStart && column + 1 + word.size() > helpWidth) {
            lines += u'\n' + QString(indent, u' ');
            column = indent;
            isLineStart = true;
        }
        if (!isLineStart) {
            lines += u' ';
            ++column;
        }
        lines += word;
        column += word.size();
        isLineStart = false;
    }
    return lines + u'\n';
}

/// A name, and its explanation from a fixed column on; if the name is too long, on the next line.
QString entry(const QString &name, const QString &explanation)
{
    constexpr qsizetype column = 22;
    QString start = u"  "_s + name;
    if (start.size() + 2 > column)
        start += u'\n' + QString(column, u' ');
    else
        start = start.leftJustified(column);
    return start + wrapped(explanation, column, column);
}

QString heading(const char *textKey)
{
    return u'\n' + commandText(textKey) + u":\n"_s;
}

QString optionName(const Argument &argument)
{
    const QString letter = argument.shortName.isNull() ? QString() : u'-' + QString(argument.shortName) + u", "_s;
    return letter + argument.spelled();
}

QString explanationOf(const Argument &argument)
{
    return commandText(argument.textKey, {{"[WORDS]", alternatives(argument.choices)},
                                          {"[LEAST]", QString::number(argument.least)},
                                          {"[MOST]", QString::number(argument.most)}});
}

QString section(const Declaration &declaration, ArgumentGroup group, const char *textKey)
{
    QString entries;
    for (const Argument &argument : declaration.arguments()) {
        if (argument.group == group)
            entries += entry(argument.isOperand() ? argument.name : optionName(argument), explanationOf(argument));
    }
    return entries.isEmpty() ? QString() : heading(textKey) + entries;
}

QString spelledForUsage(const Argument &argument)
{
    return argument.spelled() + (argument.isOperand() && argument.isRepeatable() ? u"..."_s : QString());
}

/// The options that several required choices have in common: each is a way of its own to call the command.
QStringList waysOf(const Declaration &declaration)
{
    QStringList ways;
    for (const Argument &argument : declaration.arguments()) {
        const auto &choices = declaration.choices();
        if (std::count_if(choices.begin(), choices.end(), [&argument](const Declaration::Choice &choice) {
                return choice.isRequired && choice.names.contains(argument.name);
            }) > 1)
            ways << argument.name;
    }
    return ways;
}

/// "lumora icons (SOURCE | --example) --platform LIST (--to DIR | --out DIR) [OPTION]...": the call with one of the
/// ways, or with none of them if `way` is empty.
QString usageOf(const Declaration &declaration, const QStringList &ways, const QString &way)
{
    QStringList parts{u"lumora"_s, declaration.commandName()};
    QStringList chosen;
    QStringList trailing;
    for (const Declaration::Choice &choice : declaration.choices()) {
        if (!choice.isRequired)
            continue;
        chosen += choice.names;
        if (choice.names.contains(way)) {
            parts << declaration.named(way)->spelled();
            continue;
        }
        QStringList spelled;
        bool hasOperand = false;
        for (const QString &name : choice.names) {
            const Argument *argument = declaration.named(name);
            if (ways.contains(name))
                continue;
            spelled << spelledForUsage(*argument);
            hasOperand = hasOperand || argument->isOperand();
        }
        const QString all = spelled.join(u" | "_s);
        (hasOperand || spelled.size() == 1 ? parts : trailing) << (spelled.size() == 1 ? all : u'(' + all + u')');
    }
    parts.removeDuplicates();
    for (const Argument &argument : declaration.arguments()) {
        if (chosen.contains(argument.name))
            continue;
        const QString spelled = spelledForUsage(argument);
        if (argument.isOperand())
            parts << (argument.isRequired ? spelled : u'[' + spelled + u']');
        else if (argument.isRequired)
            parts << spelled;
    }
    return (parts + trailing + QStringList{u'[' + commandText("CLI_OPTION_WORD") + u"]..."_s}).join(u' ');
}

/// A line for each way to call the command.
QString usageLines(const Declaration &declaration)
{
    const QString word = commandText("CLI_USAGE") + u": "_s;
    const QString indent(word.size(), u' ');
    const QStringList ways = waysOf(declaration);
    QString lines = word + wrapped(usageOf(declaration, ways, {}), word.size(), word.size());
    for (const QString &way : ways)
        lines += indent + wrapped(usageOf(declaration, ways, way), word.size(), word.size());
    return lines;
}

QString exampleLines(const QStringList &examples)
{
    QString lines = heading("CLI_EXAMPLES");
    for (const QString &example : examples)
        lines += u"  "_s + example + u'\n';
    return lines;
}

} // namespace

QString programHelp()
{
    const QString word = commandText("CLI_USAGE") + u": "_s;
    const QString indent(word.size(), u' ');
    QString text = word + commandText("CLI_PROGRAM_USAGE") + u'\n' + indent +
                   u"lumora [--tool NAME] [--today] [FILE]...\n"_s + indent + u"lumora help [COMMAND]\n\n"_s +
                   wrapped(commandText("CLI_PROGRAM_ABOUT"), 0, 0);
    text += heading("CLI_COMMANDS");
    for (const Command &command : commandTable())
        text += entry(QString::fromLatin1(command.name), commandText(command.textKey));
    text += entry(u"help [COMMAND]"_s, commandText("CLI_HELP"));
    text += entry(u"version"_s, commandText("CLI_VERSION"));
    text += heading("CLI_WINDOW");
    text += entry(u"--tool NAME"_s, commandText("CLI_TOOL", {{"[WORDS]", alternatives(toolNames())}}));
    text += entry(u"--today"_s, commandText("CLI_TODAY"));
    text += heading("CLI_GENERAL");
    const Declaration general{QString()};
    for (const Argument &argument : general.arguments())
        text += entry(optionName(argument), explanationOf(argument));
    return text + exampleLines({u"lumora icons logo.png --platform all --out build/icons"_s,
                                u"lumora validate App.ipa --json"_s});
}

QString commandHelp(const Command &command, const Declaration &declaration)
{
    QString text = wrapped(commandText(command.textKey), 0, 0) + u'\n' + usageLines(declaration);
    for (const char *key : declaration.explanations())
        text += u'\n' + wrapped(commandText(key), 0, 0);
    text += section(declaration, ArgumentGroup::Operand, "CLI_OPERANDS");
    text += section(declaration, ArgumentGroup::Command, "CLI_OPTIONS");
    text += section(declaration, ArgumentGroup::Output, "CLI_OUTPUT");
    text += section(declaration, ArgumentGroup::General, "CLI_GENERAL");
    return text + exampleLines(declaration.examples());
}

} // namespace lumora
