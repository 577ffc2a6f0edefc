// SPDX-License-Identifier: MIT
#include "CssValues.h"

#include <QStringList>

#include <cmath>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

struct AngleUnit
{
    QLatin1StringView name;
    double degrees = 0.0;
};

constexpr AngleUnit angleUnits[] = {
    {"deg"_L1, 1.0}, {"grad"_L1, 0.9}, {"rad"_L1, 57.295779513082320877}, {"turn"_L1, 360.0}};

bool isCssSpace(QChar character)
{
    return character == u' ' || character == u'\t' || character == u'\n' || character == u'\r' || character == u'\f';
}

/// The length of the CSS number at the beginning of the text; 0 if there is none.
qsizetype numberLength(QStringView text)
{
    const auto digitsFrom = [text](qsizetype from) {
        qsizetype end = from;
        while (end < text.size() && text[end] >= u'0' && text[end] <= u'9')
            ++end;
        return end - from;
    };
    qsizetype at = !text.isEmpty() && (text[0] == u'+' || text[0] == u'-') ? 1 : 0;
    const qsizetype whole = digitsFrom(at);
    at += whole;
    if (at < text.size() && text[at] == u'.' && digitsFrom(at + 1) > 0)
        at += 1 + digitsFrom(at + 1);
    else if (whole == 0)
        return 0;
    if (at < text.size() && text[at].toLower() == u'e') {
        const bool isSigned = at + 1 < text.size() && (text[at + 1] == u'+' || text[at + 1] == u'-');
        const qsizetype power = at + (isSigned ? 2 : 1);
        if (digitsFrom(power) > 0)
            at = power + digitsFrom(power);
    }
    return at;
}

std::optional<CssValue> cssValue(QStringView text)
{
    const qsizetype length = numberLength(text);
    if (length == 0) {
        const QString word = text.toString().toLower();
        return CssValue{word == u"none" ? CssValue::Kind::None : CssValue::Kind::Word, 0.0, word};
    }
    const double number = text.first(length).toDouble();
    if (!std::isfinite(number))
        return std::nullopt;
    const QStringView unit = text.sliced(length);
    if (unit.isEmpty())
        return CssValue{CssValue::Kind::Number, number, {}};
    if (unit == u"%")
        return CssValue{CssValue::Kind::Percentage, number, {}};
    for (const AngleUnit &angle : angleUnits) {
        if (unit.compare(angle.name, Qt::CaseInsensitive) == 0 && std::isfinite(number * angle.degrees))
            return CssValue{CssValue::Kind::Angle, number * angle.degrees, {}};
    }
    return std::nullopt;
}

std::vector<QStringView> words(QStringView text)
{
    std::vector<QStringView> found;
    qsizetype begin = -1;
    for (qsizetype at = 0; at <= text.size(); ++at) {
        const bool inside = at < text.size() && !isCssSpace(text[at]);
        if (inside && begin < 0)
            begin = at;
        if (!inside && begin >= 0) {
            found.push_back(text.sliced(begin, at - begin));
            begin = -1;
        }
    }
    return found;
}

bool takeWords(CssFunction &function, const std::vector<QStringView> &texts)
{
    for (const QStringView text : texts) {
        const std::optional<CssValue> value = cssValue(text);
        if (!value)
            return false;
        function.arguments.push_back(*value);
    }
    return true;
}

bool takeLegacyArguments(CssFunction &function, QStringView text)
{
    function.commas = true;
    std::vector<QStringView> texts;
    for (const QStringView part : text.split(u',')) {
        const std::vector<QStringView> one = words(part);
        if (one.size() != 1)
            return false;
        texts.push_back(one.front());
    }
    if (!takeWords(function, texts))
        return false;
    if (function.arguments.size() == 4) {
        function.alpha = function.arguments.back();
        function.arguments.pop_back();
    }
    return true;
}

bool takeArguments(CssFunction &function, QStringView text)
{
    if (text.contains(u','))
        return takeLegacyArguments(function, text);
    const QList<QStringView> parts = text.split(u'/');
    if (parts.size() > 2 || !takeWords(function, words(parts.front())))
        return false;
    if (parts.size() == 2) {
        const std::vector<QStringView> alpha = words(parts.back());
        function.alpha = alpha.size() == 1 ? cssValue(alpha.front()) : std::nullopt;
        return function.alpha.has_value();
    }
    return true;
}

} // namespace

std::optional<CssFunction> cssFunction(QStringView text)
{
    const qsizetype open = text.indexOf(u'(');
    if (open <= 0 || !text.endsWith(u')'))
        return std::nullopt;
    CssFunction function;
    function.name = text.first(open).toString().toLower();
    if (!takeArguments(function, text.sliced(open + 1).chopped(1)))
        return std::nullopt;
    return function;
}

} // namespace lumora
