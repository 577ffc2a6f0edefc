// SPDX-License-Identifier: MIT
#include "WindowArguments.h"

#include "ToolTable.h"

#include <QFileInfo>

namespace lumora
{

namespace
{

bool isTool(const QString &name)
{
    const std::span<const Tool> tools = toolTable();
    return std::any_of(tools.begin(), tools.end(),
                       [&](const Tool &tool) { return name == QLatin1StringView(tool.name); });
}

} // namespace

Result<OpenRequest> parseWindowArguments(const QStringList &arguments)
{
    const QString toolOption = QStringLiteral("--tool=");
    OpenRequest request;
    bool optionsEnded = false;
    for (const QString &argument : arguments) {
        if (optionsEnded || !argument.startsWith(u'-') || argument == u'-') {
            request.files << QFileInfo(argument).absoluteFilePath();
        } else if (argument == QStringLiteral("--")) {
            optionsEnded = true;
        } else if (argument.startsWith(toolOption) && isTool(argument.sliced(toolOption.size()))) {
            request.tool = argument.sliced(toolOption.size());
        } else {
            return Failure{FailureCode::InvalidValue, argument, {}};
        }
    }
    return request;
}

} // namespace lumora
