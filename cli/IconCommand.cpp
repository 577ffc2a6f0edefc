// SPDX-License-Identifier: MIT
#include "IconCommand.h"

#include "ExistingFolder.h"
#include "IconInput.h"
#include "IconReport.h"
#include "foundation/LeadingInteger.h"
#include "icons/IconExport.h"
#include "pictures/RoundedCorners.h"

#include <CLI/Validators.hpp>

#include <map>
#include <memory>

namespace lumora
{

namespace
{

struct IconCommandArguments : IconArguments
{
    std::string size;
    CornerMode corners = CornerMode::None;
};

ExitStatus refuse(Console &console, const Failure &failure)
{
    console.complain(failure);
    return ExitStatus::Refused;
}

ExitStatus runIcon(Console &console, const IconCommandArguments &arguments)
{
    const QString typed = QString::fromStdString(arguments.size);
    const int size = leadingInteger(typed);
    if (size < 1 || size > sourceIconSize) {
        return refuse(console, {FailureCode::InvalidValue, QStringLiteral("--size ") + typed,
                                QStringLiteral("a number from 1 to %1 is wanted").arg(sourceIconSize)});
    }
    const Result<QString> destination = existingFolder(arguments.destination);
    if (!destination)
        return refuse(console, destination.failure());
    const Result<QImage> source = iconSource(arguments);
    if (!source)
        return refuse(console, source.failure());
    const IconExport result =
        generateCustomIcon({source.value(), destination.value(), size, static_cast<int>(arguments.corners)});
    return reportIcons(console, result, arguments.json ? IconReportForm::Json : IconReportForm::Text);
}

} // namespace

CommandBody declareIconCommand(CLI::App &subcommand)
{
    const auto arguments = std::make_shared<IconCommandArguments>();
    subcommand.description("Write one icon of a size of your own");
    arguments->declareOn(subcommand);
    subcommand.add_option("--size", arguments->size, "Edge length in pixels, 1 to 1024")
        ->type_name("N")
        ->allow_extra_args(false)
        ->required();
    const std::map<std::string, CornerMode> corners = {
        {"none", CornerMode::None}, {"ios6", CornerMode::Ios6}, {"ios7", CornerMode::Ios7}};
    subcommand.add_option("--corners", arguments->corners, "Rounded corners: none, ios6 or ios7")
        ->transform(CLI::CheckedTransformer(corners).description(""))
        ->type_name("STYLE");
    return [arguments](Console &console) { return runIcon(console, *arguments); };
}

} // namespace lumora
