// SPDX-License-Identifier: MIT
#include "WindowArguments.h"

#include "cli/arguments/ArgumentParser.h"
#include "cli/arguments/OutputPlace.h"
#include "cli/arguments/Suggestion.h"
#include "cli/commands/CommandTable.h"
#include "cli/console/CommandText.h"

#include <QFileInfo>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

const QString toolOption = u"--tool"_s;
const QString todayOption = u"--today"_s;

/// Reads the arguments one after another.
class Reader
{
public:
    explicit Reader(const QStringList &arguments) : m_arguments(arguments) {}

    std::variant<OpenRequest, Complaint> read()
    {
        while (m_next < m_arguments.size() && !m_problem)
            readOne(m_arguments[m_next++]);
        if (m_problem)
            return *m_problem;
        return m_request;
    }

private:
    void readOne(const QString &argument)
    {
        if (m_optionsEnded || !argument.startsWith(u'-') || argument == u"-")
            takeFile(argument);
        else if (argument == u"--")
            m_optionsEnded = true;
        else if (argument == todayOption)
            m_request.today = true;
        else if (argument.startsWith(QString(toolOption + u'=')))
            takeTool(argument.sliced(toolOption.size() + 1));
        else if (argument == toolOption && m_next < m_arguments.size())
            takeTool(m_arguments[m_next++]);
        else if (argument == toolOption)
            m_problem = misuse("missing-value",
                               commandText("CLI_MISSING_VALUE", {{"[OPTION]", toolOption}, {"[NAME]", u"NAME"_s}}),
                               commandText("CLI_CHOICES", {{"[WORDS]", alternatives(toolNames())}}));
        else
            m_problem = unknownOption(argument, {toolOption, todayOption, u"--help"_s, u"--version"_s});
    }

    void takeTool(const QString &name)
    {
        m_request.tool = toolNamed(name);
        if (m_request.tool.isEmpty())
            m_problem = misuse(
                "bad-value",
                commandText("CLI_UNKNOWN_TOOL", {{"[WORDS]", alternatives(toolNames())}, {"[VALUE]", quoted(name)}}),
                didYouMean(nearestWords(name, toolNames())));
    }

    void takeFile(const QString &argument)
    {
        const QUrl url(argument);
        const QString given = url.isLocalFile() ? url.toLocalFile() : argument;
        const Result<QString> path = absolutePath(given);
        if (argument.isEmpty())
            m_problem = misuse("empty-value", commandText("CLI_EMPTY_WORD"));
        else if (!path)
            m_problem = complaintOf(path.failure());
        else if (!QFileInfo::exists(path.value()))
            m_problem = complaintOf(Failure{FailureCode::NotFound, given, {}});
        else
            m_request.files << path.value();
    }

    const QStringList &m_arguments;
    qsizetype m_next = 0;
    bool m_optionsEnded = false;
    OpenRequest m_request;
    std::optional<Complaint> m_problem;
};

} // namespace

std::variant<OpenRequest, Complaint> parseWindowArguments(const QStringList &arguments)
{
    return Reader(arguments).read();
}

} // namespace lumora
