// SPDX-License-Identifier: MIT
#include "ColorForms.h"

#include "cli/console/CommandText.h"
#include "color/forms/ColorForm.h"
#include "color/forms/ColorReader.h"
#include "color/spaces/Contrast.h"

#include <optional>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

std::optional<ColorReading> understood(Console &console, const QString &text)
{
    Result<ColorReading> reading = readColor(text);
    if (reading)
        return std::move(reading).value();
    console.complain(Complaint{Complaint::Kind::Failure, u"invalid-value"_s, quoted(text),
                               commandText("CLI_COLOR_NO_FORM"), commandText("CLI_COLOR_NO_FORM_ADVICE")});
    return std::nullopt;
}

bool isWanted(const ColorForm &form, const ColorFormsRequest &request)
{
    return request.forms.isEmpty() || request.forms.contains(form.name);
}

void printForms(Console &console, const ColorFormsRequest &request, const WideColor &color)
{
    for (const ColorForm &form : colorForms()) {
        if (!isWanted(form, request))
            continue;
        const QString wide = request.displayP3 ? displayP3FormText(form, color) : QString();
        const QString text = wide.isEmpty() ? formText(form, color) : wide;
        // A single form is meant for a pipe.
        console.print(request.forms.size() == 1 ? text : QString(QString(form.name) + u": "_s + text));
    }
}

QJsonObject formsJson(const ColorFormsRequest &request, const WideColor &color)
{
    QJsonObject forms;
    QJsonObject displayP3;
    for (const ColorForm &form : colorForms()) {
        if (!isWanted(form, request))
            continue;
        forms.insert(form.name, formText(form, color));
        if (const QString wide = displayP3FormText(form, color); !wide.isEmpty())
            displayP3.insert(form.name, wide);
    }
    return {{u"forms"_s, forms}, {u"displayP3"_s, displayP3}};
}

/// The ratio, the thresholds that it reaches, and the nearest color that is enough for text if this one is not.
QJsonObject contrastJson(const Contrast &contrast, const std::optional<WideColor> &nearest)
{
    QJsonObject object{{u"ratio"_s, contrast.ratio},         {u"aa"_s, contrast.aa()},
                       {u"aaLarge"_s, contrast.aaLarge()},   {u"aaa"_s, contrast.aaa()},
                       {u"aaaLarge"_s, contrast.aaaLarge()}, {u"interface"_s, contrast.interfacePart()}};
    object.insert(u"nearest"_s, nearest ? QJsonValue(hex8Of(*nearest)) : QJsonValue());
    return object;
}

void printContrast(Console &console, const Contrast &contrast, const std::optional<WideColor> &nearest)
{
    console.print(QString(u"contrast: "_s + ratioText(contrast.ratio) + u":1"_s));
    for (const auto &[name, passes] :
         {std::pair{u"aa"_s, contrast.aa()}, std::pair{u"aa-large"_s, contrast.aaLarge()},
          std::pair{u"aaa"_s, contrast.aaa()}, std::pair{u"aaa-large"_s, contrast.aaaLarge()},
          std::pair{u"interface"_s, contrast.interfacePart()}})
        console.print(QString(name + (passes ? u": pass"_s : u": fail"_s)));
    if (nearest && !contrast.aa())
        console.print(QString(u"nearest: "_s + hex8Of(*nearest).first(7)));
}

} // namespace

ExitStatus printColorForms(Console &console, const ColorFormsRequest &request)
{
    const std::optional<ColorReading> reading = understood(console, request.text);
    std::optional<ColorReading> other;
    if (reading && !request.contrast.isEmpty())
        other = understood(console, request.contrast);
    if (!reading || (!request.contrast.isEmpty() && !other))
        return console.finish(ExitStatus::Refused);
    const WideColor &color = reading->color;
    const bool clipped = isClippedIn(color, RgbSpace::Srgb);
    QJsonObject result = formsJson(request, color);
    result.insert(u"hex8"_s, hex8Of(color));
    result.insert(u"notation"_s, QString(reading->notation));
    result.insert(u"clipped"_s, clipped);
    if (request.printsForms)
        printForms(console, request, color);
    if (other) {
        const Contrast contrast = contrastOf(color, other->color);
        const std::optional<WideColor> nearest = nearestWithContrast(color, other->color, contrastForText);
        result.insert(u"contrast"_s, contrastJson(contrast, nearest));
        printContrast(console, contrast, nearest);
    }
    // With --json the object contains it.
    if (clipped && !console.form().json)
        console.warn(commandText("CLI_COLOR_CLIPPED", {{"[COLOR]", request.text}}));
    return console.finish(ExitStatus::Done, result);
}

QStringList colorFormNames()
{
    QStringList names;
    for (const ColorForm &form : colorForms())
        names << form.name;
    return names;
}

} // namespace lumora
