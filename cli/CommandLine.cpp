// SPDX-License-Identifier: MIT
#include "CommandLine.h"

#include "HelpText.h"
#include "ScreenlessApplication.h"
#include "cli/arguments/ArgumentParser.h"
#include "cli/arguments/Declaration.h"
#include "cli/arguments/Suggestion.h"
#include "cli/commands/CommandTable.h"
#include "cli/console/CommandText.h"
#include "cli/console/Console.h"
#include "foundation/MemoryLimit.h"
#include "foundation/Version.h"
#include "resources/Resources.h"

#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QUrl>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <new>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

const QStringList helpOptions = {u"--help"_s, u"-h"_s};
const QStringList versionOptions = {u"--version"_s, u"-V"_s};
/// The options of every command; they may also come before its name.
const QStringList leadingOptions = {u"--json"_s, u"--quiet"_s, u"-q"_s, u"--verbose"_s, u"-v"_s};
const QString helpCommand = u"help"_s;
const QString versionCommand = u"version"_s;

QStringList wordsOf(int argc, const char *const *argv)
{
    QStringList words;
    for (int index = 1; index < argc; ++index)
        words << QFile::decodeName(argv[index]);
    return words;
}

/// Moves the words before the command's name behind it.
QStringList withCommandFirst(QStringList words)
{
    qsizetype leading = 0;
    while (leading < words.size() && leadingOptions.contains(words[leading]))
        ++leading;
    if (leading < words.size())
        words.move(leading, 0);
    return words;
}

bool isForTheWindow(const QString &word)
{
    return word == u"--" || word == u"--tool" || word.startsWith(u"--tool=") || word == u"--today" ||
           QFileInfo::exists(word) || QFileInfo(word).isSymLink() || QUrl(word).isLocalFile();
}

/// Whether an option is given, except as an operand after "--".
bool asksFor(const QStringList &words, const QStringList &options)
{
    for (const QString &word : words) {
        if (word == u"--")
            return false;
        if (options.contains(word))
            return true;
    }
    return false;
}

std::unique_ptr<QCoreApplication> makeApplication(int &argc, char **argv, bool drawsText)
{
    if (!drawsText)
        return std::make_unique<QCoreApplication>(argc, argv);
    return makeScreenlessApplication(argc, argv);
}

void installCommandTexts()
{
    loadResources();
    installTexts(*QCoreApplication::instance(), QLocale::system(), ToolkitTexts::LeaveOut);
}

ExitStatus printLines(Console &console, const QString &text)
{
    console.print(text.toUtf8());
    return ExitStatus::Done;
}

QString versionLine()
{
    return u"lumora "_s + QLatin1StringView(versionText) + u'\n';
}

Complaint unknownCommand(const QString &word)
{
    const QStringList known = commandNames() + toolNames() + QStringList{helpCommand, versionCommand};
    const QStringList meant = nearestWords(word, known);
    return misuse("unknown-command", commandText("CLI_UNKNOWN_COMMAND", {{"[WORD]", quoted(word)}}),
                  meant.isEmpty() ? commandText("CLI_SEE_HELP", {{"[COMMAND]", u"lumora help"_s}}) : didYouMean(meant));
}

/// The complaint about a word that `help` and `version` do not take.
std::optional<Complaint> surplus(const QStringList &words, qsizetype topics)
{
    for (const QString &word : words) {
        const QStringList known = helpOptions + versionOptions + leadingOptions;
        if (!word.startsWith(u'-') && --topics < 0)
            return misuse("unexpected-argument", commandText("CLI_UNEXPECTED", {{"[WORD]", quoted(word)}}),
                          commandText("CLI_SEE_HELP", {{"[COMMAND]", u"lumora help"_s}}));
        if (word.startsWith(u'-') && !known.contains(word))
            return unknownOption(word, known);
    }
    return std::nullopt;
}

/// `lumora version`.
ExitStatus runVersion(Console &console, const QStringList &words)
{
    if (const std::optional<Complaint> complaint = surplus(words, 0)) {
        console.complain(*complaint);
        return console.finish(ExitStatus::Usage);
    }
    if (!console.form().json)
        return printLines(console, versionLine());
    return console.finish(ExitStatus::Done, {{u"version"_s, QLatin1StringView(versionText)}});
}

/// `lumora help [COMMAND]`.
ExitStatus runHelp(Console &console, const QStringList &words)
{
    if (const std::optional<Complaint> complaint = surplus(words, 1)) {
        console.complain(*complaint);
        return console.finish(ExitStatus::Usage);
    }
    const auto isTopic = [](const QString &word) { return !word.startsWith(u'-'); };
    const auto topic = std::find_if(words.begin(), words.end(), isTopic);
    if (topic == words.end() || *topic == helpCommand || *topic == versionCommand)
        return printLines(console, programHelp());
    const Command *command = commandNamed(*topic);
    if (command == nullptr) {
        console.complain(unknownCommand(*topic));
        return console.finish(ExitStatus::Usage);
    }
    Declaration declaration(QString::fromLatin1(command->name));
    const CommandBody body = command->declare(declaration);
    return printLines(console, commandHelp(*command, declaration));
}

ExitStatus runCommand(const Command &command, const QStringList &words)
{
    Declaration declaration(QString::fromLatin1(command.name));
    const CommandBody body = command.declare(declaration);
    if (asksFor(words, helpOptions) || asksFor(words, versionOptions)) {
        Console console;
        return printLines(console, asksFor(words, helpOptions) ? commandHelp(command, declaration) : versionLine());
    }
    if (const std::optional<Complaint> problem = readArguments(declaration, words)) {
        // The option may come after the mistake.
        Console console({asksFor(words, {u"--json"_s}), false, false}, declaration.commandName());
        console.complain(*problem);
        return console.finish(problem->kind == Complaint::Kind::Misuse ? ExitStatus::Usage : ExitStatus::Refused);
    }
    Console console(declaration.form(), declaration.commandName());
    const ExitStatus status = body(console);
    console.finish(status);
    return status;
}

ExitStatus run(const QStringList &words)
{
    Console console({asksFor(words, {u"--json"_s}), false, false});
    const QString first = words.value(0);
    if (first == helpCommand || helpOptions.contains(first))
        return runHelp(console, words.sliced(1));
    if (first == versionCommand || versionOptions.contains(first))
        return runVersion(console, words.sliced(1));
    if (const Command *command = commandNamed(first))
        return runCommand(*command, words.sliced(1));
    if (leadingOptions.contains(first))
        console.complain(misuse("missing-option", commandText("CLI_MISSING_OPTION", {{"[OPTION]", u"COMMAND"_s}}),
                                commandText("CLI_SEE_HELP", {{"[COMMAND]", u"lumora help"_s}})));
    else if (first.isEmpty())
        console.complain(misuse("empty-value", commandText("CLI_EMPTY_WORD")));
    else if (first.startsWith(u'-') && first.size() > 1)
        console.complain(unknownOption(first, helpOptions.first(1) + versionOptions.first(1) + leadingOptions +
                                                  QStringList{u"--tool"_s, u"--today"_s}));
    else
        console.complain(unknownCommand(first));
    return console.finish(ExitStatus::Usage);
}

/// Memory that runs out where no engine reports it is a failure of the call, not a crash.
ExitStatus runWithinMemory(const QStringList &words)
{
    try {
        return run(words);
    } catch (const std::bad_alloc &) {
        Console().complain(complaintOf(outOfMemory({})));
        return ExitStatus::Refused;
    }
}

} // namespace

bool isCommandLine(int argc, const char *const *argv)
{
    const QStringList words = withCommandFirst(wordsOf(argc, argv));
    if (words.isEmpty())
        return false;
    const QString &first = words.first();
    return commandNamed(first) != nullptr || first == helpCommand || first == versionCommand || !isForTheWindow(first);
}

int runCommandLine(int argc, char **argv)
{
    // Scripts do not need the engines' lines for the window's log or the remarks of Qt and its plug-ins; the commands
    // themselves report failures.
    QLoggingCategory::setFilterRules(u"*.info=false\n*.warning=false"_s);
    const QStringList words = withCommandFirst(wordsOf(argc, argv));
    const Command *command = words.isEmpty() ? nullptr : commandNamed(words.first());
    const auto application = makeApplication(argc, argv, command != nullptr && command->drawsText);
    QCoreApplication::setApplicationName(u"lumora"_s);
    QCoreApplication::setApplicationVersion(QLatin1StringView(versionText));
    installCommandTexts();
    ExitStatus status = runWithinMemory(words);
    if (Console console; !console.flush()) {
        console.complain(Complaint{Complaint::Kind::Failure, u"cannot-write"_s, commandText("CLI_STANDARD_OUTPUT"),
                                   commandText("CLI_CANNOT_WRITE"), commandText("CLI_STANDARD_OUTPUT_ADVICE")});
        status = ExitStatus::Refused;
    }
    return static_cast<int>(status);
}

int endWithComplaint(int argc, char **argv, ExitStatus status, const std::function<Complaint()> &complaint)
{
    const QCoreApplication application(argc, argv);
    installCommandTexts();
    Console().complain(complaint());
    return static_cast<int>(status);
}

} // namespace lumora
