// SPDX-License-Identifier: MIT
#include "ColorCommand.h"

#include "Console.h"
#include "color/ColorCode.h"

#include <CLI/Validators.hpp>

#include <QJsonObject>

#include <memory>
#include <string>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

struct ColorArguments
{
    std::string text;
    std::string notation = "all";
    bool json = false;
};

/// Every notation by the name that --as, the lines and the JSON keys share.
std::vector<std::pair<QString, QString>> namedCodes(const ColorCodes &codes)
{
    return {
        {u"hex"_s, stringFromColor(codes.color)},   {u"ios"_s, codes.code(ColorNotation::Ios)},
        {u"mac"_s, codes.code(ColorNotation::Mac)}, {u"rgb"_s, codes.code(ColorNotation::Rgb)},
        {u"css"_s, codes.code(ColorNotation::Css)},
    };
}

void printJson(Console &console, const ColorCodes &codes)
{
    QJsonObject object{{u"schema"_s, 1}};
    for (const auto &[name, code] : namedCodes(codes))
        object.insert(name, code);
    console.print(QJsonDocument(object));
}

void printLines(Console &console, const ColorCodes &codes, const QString &wanted)
{
    for (const auto &[name, code] : namedCodes(codes)) {
        if (wanted == u"all")
            console.print(QString(name + u": "_s + code));
        else if (wanted == name)
            console.print(code);
    }
}

ExitStatus runColor(Console &console, const ColorArguments &arguments)
{
    const QString text = QString::fromStdString(arguments.text);
    const Result<ColorCodes> codes = codesForCopying(text);
    if (!codes) {
        console.complain(QString(
            u"\""_s + text +
            u"\": is no colour code; give three or six hexadecimal digits, with or without #, such as #abc or #34485e"_s));
        return ExitStatus::Refused;
    }
    if (arguments.json)
        printJson(console, codes.value());
    else
        printLines(console, codes.value(), QString::fromStdString(arguments.notation));
    return ExitStatus::Done;
}

} // namespace

CommandBody declareColorCommand(CLI::App &subcommand)
{
    const auto arguments = std::make_shared<ColorArguments>();
    subcommand.description("Print a colour as code");
    subcommand.add_option("TEXT", arguments->text, "Three or six hexadecimal digits, with or without #")->required();
    subcommand.add_option("--as", arguments->notation, "Notation to print, or all, each with its name")
        ->check(CLI::IsMember({"hex", "ios", "mac", "rgb", "css", "all"}))
        ->capture_default_str();
    subcommand.add_flag("--json", arguments->json, "Print every notation as one JSON object");
    return [arguments](Console &console) { return runColor(console, *arguments); };
}

} // namespace lumora
