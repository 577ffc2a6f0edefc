// SPDX-License-Identifier: MIT
#include "ColorCommand.h"

#include "ColorForms.h"
#include "cli/arguments/Declaration.h"
#include "cli/console/CommandText.h"
#include "color/ColorCode.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

struct ColorArguments
{
    QString text;
    QString notation = u"all"_s;
    QStringList forms;
    bool allForms = false;
    bool displayP3 = false;
    QString contrast;

    bool isOfToday() const { return allForms || displayP3 || !forms.isEmpty() || !contrast.isEmpty(); }
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

QJsonObject codesJson(const ColorCodes &codes)
{
    QJsonObject object;
    for (const auto &[name, code] : namedCodes(codes))
        object.insert(name, code);
    return object;
}

/// While the user types, the window accepts letters that are not digits; a script gets the exact color or a complaint.
bool isColorCode(QStringView text)
{
    if (text.startsWith(u'#'))
        text = text.sliced(1);
    const auto isDigit = [](QChar character) {
        return (character >= u'0' && character <= u'9') || (character >= u'a' && character <= u'f') ||
               (character >= u'A' && character <= u'F');
    };
    return (text.size() == 3 || text.size() == 6) && std::all_of(text.begin(), text.end(), isDigit);
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
    if (arguments.isOfToday())
        return printColorForms(console, {arguments.text, arguments.allForms ? QStringList() : arguments.forms,
                                         arguments.displayP3, arguments.contrast,
                                         arguments.allForms || arguments.displayP3 || !arguments.forms.isEmpty()});
    const Result<ColorCodes> codes = codesForCopying(arguments.text);
    if (!codes || !isColorCode(arguments.text)) {
        console.complain(Complaint{Complaint::Kind::Failure, u"invalid-value"_s, quoted(arguments.text),
                                   commandText("CLI_NO_COLOR"), commandText("CLI_NO_COLOR_ADVICE")});
        return ExitStatus::Refused;
    }
    printLines(console, codes.value(), arguments.notation);
    return console.finish(ExitStatus::Done, codesJson(codes.value()));
}

} // namespace

CommandBody declareColorCommand(Declaration &declaration)
{
    const auto arguments = std::make_shared<ColorArguments>();
    declaration.operand("TEXT", &arguments->text, "CLI_COLOR_TEXT").required();
    declaration.option("--as", &arguments->notation, "NOTATION", "CLI_COLOR_AS")
        .words({u"hex"_s, u"ios"_s, u"mac"_s, u"rgb"_s, u"css"_s, u"all"_s});
    declaration.option("--form", &arguments->forms, "FORM", "CLI_COLOR_FORM").words(colorFormNames()).list();
    declaration.flag("--all", &arguments->allForms, "CLI_COLOR_ALL");
    declaration.flag("--p3", &arguments->displayP3, "CLI_COLOR_P3");
    declaration.option("--contrast", &arguments->contrast, "COLOR", "CLI_COLOR_CONTRAST");
    declaration.atMostOne({u"--as"_s, u"--form"_s, u"--all"_s});
    declaration.example("lumora color 34485e --as css");
    declaration.example("lumora color 'rgb(51 102 153)' --form swiftui,css-oklch --contrast white");
    return [arguments](Console &console) { return runColor(console, *arguments); };
}

} // namespace lumora
