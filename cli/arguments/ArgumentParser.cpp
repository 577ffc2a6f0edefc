// SPDX-License-Identifier: MIT
#include "ArgumentParser.h"

#include "Declaration.h"
#include "Suggestion.h"
#include "TypedNumber.h"
#include "cli/console/CommandText.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

using Problem = std::optional<Complaint>;

bool looksLikeAnOption(const QString &word)
{
    return word.size() > 1 && word.startsWith(u'-') && !word[1].isDigit();
}

Complaint wrongChoice(const Argument &argument, const QString &value)
{
    return misuse("bad-value",
                  commandText("CLI_WRONG_CHOICE", {{"[OPTION]", argument.name},
                                                   {"[WORDS]", alternatives(argument.choices)},
                                                   {"[VALUE]", quoted(value)}}),
                  didYouMean(nearestWords(value, argument.choices)));
}

Complaint wrongNumber(const Argument &argument, const QString &value, const char *code)
{
    return misuse(code, commandText("CLI_WRONG_NUMBER", {{"[OPTION]", argument.name},
                                                         {"[LEAST]", QString::number(argument.least)},
                                                         {"[MOST]", QString::number(argument.most)},
                                                         {"[VALUE]", quoted(value)}}));
}

/// The state of reading one command line.
class Reader
{
public:
    Reader(Declaration &declaration, const QStringList &words) : m_declaration(declaration), m_words(words) {}

    Problem read()
    {
        bool optionsEnded = false;
        while (m_next < m_words.size()) {
            const QString word = m_words[m_next++];
            Problem problem;
            if (optionsEnded || !looksLikeAnOption(word))
                problem = readOperand(word);
            else if (word == u"--")
                optionsEnded = true;
            else if (word.startsWith(u"--"))
                problem = readLong(word);
            else
                problem = readLetters(word);
            if (problem)
                return problem;
        }
        return missing();
    }

private:
    Problem readOperand(const QString &word)
    {
        for (const Argument &declared : m_declaration.arguments()) {
            if (declared.isOperand() && (!declared.isGiven || declared.isRepeatable()))
                return take(*m_declaration.named(declared.name), word);
        }
        if (word.isEmpty())
            return misuse("empty-value", commandText("CLI_EMPTY_WORD"));
        const QStringList meant = optionsTaking(word);
        return misuse("unexpected-argument", commandText("CLI_UNEXPECTED", {{"[WORD]", quoted(word)}}),
                      meant.isEmpty() ? seeHelp() : didYouMean(meant));
    }

    /// The options that take a word given without one, such as "--size 64x64" for 64x64.
    QStringList optionsTaking(const QString &word) const
    {
        QStringList options;
        for (const Argument &argument : m_declaration.arguments()) {
            const bool isSize = argument.placeholder == "WxH"_L1 && word.front().isDigit();
            if (!argument.isOperand() && (isSize || argument.choices.contains(word)))
                options.append(argument.name + u' ' + word);
        }
        return options;
    }

    Problem readLong(const QString &word)
    {
        const qsizetype equals = word.indexOf(u'=');
        const QString name = equals < 0 ? word : word.first(equals);
        Argument *argument = m_declaration.named(name);
        if (argument == nullptr)
            return unknown(name);
        if (argument->isFlag()) {
            if (equals >= 0)
                return misuse("unexpected-value", commandText("CLI_FLAG_WITH_VALUE", {{"[OPTION]", name}}));
            return set(*argument);
        }
        return equals < 0 ? takeNext(*argument) : take(*argument, word.sliced(equals + 1));
    }

    Problem readLetters(const QString &word)
    {
        for (qsizetype at = 1; at < word.size(); ++at) {
            Argument *argument = m_declaration.lettered(word[at]);
            if (argument == nullptr)
                return unknown(at == 1 ? word : u'-' + word.sliced(at, 1));
            if (argument->isFlag()) {
                set(*argument);
                continue;
            }
            return at + 1 < word.size() ? take(*argument, word.sliced(at + 1)) : takeNext(*argument);
        }
        return {};
    }

    Problem unknown(const QString &typed) const
    {
        Complaint complaint = unknownOption(typed, m_declaration.optionNames());
        if (complaint.advice.isEmpty())
            complaint.advice = seeHelp();
        return complaint;
    }

    QString seeHelp() const
    {
        return commandText("CLI_SEE_HELP", {{"[COMMAND]", u"lumora help "_s + m_declaration.commandName()}});
    }

    static Problem set(Argument &argument)
    {
        argument.isGiven = true;
        if (auto *const *target = std::get_if<bool *>(&argument.target); target != nullptr && *target != nullptr)
            **target = true;
        return {};
    }

    Problem takeNext(Argument &argument)
    {
        if (m_next < m_words.size() && !looksLikeAnOption(m_words[m_next]))
            return take(argument, m_words[m_next++]);
        QString advice;
        if (!argument.choices.isEmpty())
            advice = commandText("CLI_CHOICES", {{"[WORDS]", alternatives(argument.choices)}});
        else if (m_next < m_words.size() && m_declaration.named(m_words[m_next]) == nullptr)
            advice = commandText("CLI_VALUE_WITH_DASH", {{"[OPTION]", argument.name + u'=' + m_words[m_next]}});
        return misuse("missing-value",
                      commandText("CLI_MISSING_VALUE", {{"[OPTION]", argument.name}, {"[NAME]", argument.placeholder}}),
                      advice);
    }

    Problem take(Argument &argument, const QString &value)
    {
        if (argument.isGiven && !argument.isRepeatable())
            return misuse("given-twice", commandText("CLI_GIVEN_TWICE", {{"[OPTION]", argument.name}}));
        argument.isGiven = true;
        const QStringList values = argument.isCommaList ? value.split(u',') : QStringList{value};
        for (const QString &one : values) {
            if (const Problem problem = takeOne(argument, argument.isCommaList ? one.trimmed() : one))
                return problem;
        }
        return {};
    }

    static Problem takeOne(Argument &argument, const QString &value)
    {
        if (value.isEmpty()) {
            const QString advice = argument.choices.isEmpty()
                                       ? QString()
                                       : commandText("CLI_CHOICES", {{"[WORDS]", alternatives(argument.choices)}});
            return misuse("empty-value", commandText("CLI_EMPTY_VALUE", {{"[OPTION]", argument.name}}), advice);
        }
        if (auto **text = std::get_if<QString *>(&argument.target)) {
            if (const Problem problem = checkChoice(argument, value))
                return problem;
            **text = value;
        } else if (auto **texts = std::get_if<QStringList *>(&argument.target)) {
            if (const Problem problem = checkChoice(argument, value))
                return problem;
            (*texts)->append(value);
        } else {
            return takeNumber(argument, value);
        }
        return {};
    }

    static Problem checkChoice(const Argument &argument, const QString &value)
    {
        if (argument.choices.isEmpty() || argument.choices.contains(value))
            return {};
        return wrongChoice(argument, value);
    }

    static Problem takeNumber(Argument &argument, const QString &value)
    {
        const TypedNumber number = typedNumber(value);
        if (!number.isWhole)
            return wrongNumber(argument, value, "bad-value");
        if (number.value < argument.least || number.value > argument.most) {
            Complaint complaint = wrongNumber(argument, value, "out-of-range");
            complaint.kind = Complaint::Kind::Failure;
            return complaint;
        }
        if (auto **one = std::get_if<std::optional<int> *>(&argument.target))
            **one = number.value;
        else if (auto **all = std::get_if<QList<int> *>(&argument.target))
            (*all)->append(number.value);
        return {};
    }

    Problem missing() const
    {
        for (const Declaration::Choice &choice : m_declaration.choices()) {
            const QStringList given = givenOf(choice);
            if (given.size() > 1 && choice.isExclusive)
                return misuse("conflicting-options",
                              commandText("CLI_CONFLICT", {{"[FIRST]", given[0]}, {"[SECOND]", given[1]}}));
        }
        for (const Declaration::Choice &choice : m_declaration.choices()) {
            if (choice.isRequired && givenOf(choice).isEmpty())
                return lacking(possibleOf(choice));
        }
        for (const Argument &argument : m_declaration.arguments()) {
            if (argument.isRequired && !argument.isGiven)
                return lacking({argument.name});
        }
        return {};
    }

    QStringList givenOf(const Declaration::Choice &choice) const
    {
        QStringList given;
        for (const QString &name : choice.names) {
            if (m_declaration.named(name)->isGiven)
                given << name;
        }
        return given;
    }

    /// Those of the choice that go together with what is given; all of them where none does.
    QStringList possibleOf(const Declaration::Choice &choice) const
    {
        QStringList possible;
        for (const QString &name : choice.names) {
            const auto &choices = m_declaration.choices();
            const bool isExcluded = std::any_of(choices.begin(), choices.end(), [&](const Declaration::Choice &other) {
                return other.isExclusive && other.names.contains(name) && !givenOf(other).isEmpty();
            });
            if (!isExcluded)
                possible << name;
        }
        return possible.isEmpty() ? choice.names : possible;
    }

    /// One of these is missing.
    Complaint lacking(const QStringList &names) const
    {
        QStringList spelled;
        for (const QString &name : names)
            spelled << m_declaration.named(name)->spelled();
        Complaint complaint = misuse(
            "missing-option", commandText("CLI_MISSING_OPTION", {{"[OPTION]", alternatives(spelled)}}), seeHelp());
        if (const Argument &only = *m_declaration.named(names.first()); names.size() == 1 && !only.choices.isEmpty())
            complaint.advice = commandText("CLI_CHOICES", {{"[WORDS]", alternatives(only.choices)}});
        return complaint;
    }

    Declaration &m_declaration;
    const QStringList &m_words;
    qsizetype m_next = 0;
};

} // namespace

std::optional<Complaint> readArguments(Declaration &declaration, const QStringList &words)
{
    return Reader(declaration, words).read();
}

Complaint unknownOption(const QString &typed, const QStringList &names)
{
    // -platform for --platform is a common mistake, too.
    const QString name = (typed.startsWith(u"--") ? typed : u'-' + typed).section(u'=', 0, 0);
    const bool isLetter = typed.size() == 2;
    return misuse("unknown-option", commandText("CLI_UNKNOWN_OPTION", {{"[OPTION]", typed}}),
                  isLetter ? QString() : didYouMean(nearestWords(name, names)));
}

QString didYouMean(const QStringList &words)
{
    return words.isEmpty() ? QString() : commandText("CLI_DID_YOU_MEAN", {{"[WORD]", alternatives(words)}});
}

} // namespace lumora
