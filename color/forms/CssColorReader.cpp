// SPDX-License-Identifier: MIT
#include "CssColorReader.h"

#include "CssValues.h"
#include "color/spaces/ColorModels.h"

#include <QColor>
#include <QRegularExpression>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// The kinds of value that an argument may have.
struct Accepted
{
    bool number = false;
    bool percentage = false;
    bool angle = false;
    /// The value of 100 %, and the range of plain numbers, both ends included.
    double whole = 1.0;
    double least = 0.0;
    double most = 1.0;
    /// A value below or above the range counts as its end; otherwise it is refused.
    bool clampedBelow = true;
    bool clampedAbove = true;
    /// The factor for a plain number.
    double unit = 1.0;
};

using Arguments = std::array<Accepted, 3>;

// What is clamped and what is not: drafts.csswg.org/css-color-4, and Chromium 156. Chromium clamps the saturation of
// hsl(210 150% 40%), but not that of hsl(210 150 40); here both are clamped. A hue may be any angle.
constexpr double anything = 1e300;
// color() and the opponent axes state colors beyond every screen, too, but none as far out as this.
constexpr double farthest = 3.0;
constexpr Accepted hue{true, false, true, 1.0, -anything, anything};
constexpr Accepted share{false, true};
constexpr Accepted shareOrHundred{true, true, false, 1.0, 0.0, 100.0, true, true, 0.01};
// Whiteness and blackness beyond 100 % are a gray in their proportion.
constexpr Accepted part{true, true, false, 1.0, 0.0, 1e4, true, false, 0.01};
constexpr Accepted byteOrShare{true, true, false, 1.0, 0.0, 255.0, true, true, 1.0 / 255.0};
constexpr Accepted lightness{true, true};
constexpr Accepted chroma{true, true, false, 0.4, 0.0, farthest, true, false};
constexpr Accepted axis{true, true, false, 0.4, -farthest, farthest, false, false};
constexpr Accepted component{true, true, false, 1.0, -farthest, farthest, false, false};

std::optional<double> argument(const CssValue &value, const Accepted &accepted)
{
    double result = 0.0;
    switch (value.kind) {
    case CssValue::Kind::None:
        return 0.0;
    case CssValue::Kind::Number:
        if (!accepted.number)
            return std::nullopt;
        result = value.number * accepted.unit;
        break;
    case CssValue::Kind::Percentage:
        if (!accepted.percentage)
            return std::nullopt;
        result = value.number / 100.0 * accepted.whole;
        break;
    case CssValue::Kind::Angle:
        return accepted.angle ? std::optional(value.number) : std::nullopt;
    case CssValue::Kind::Word:
        return std::nullopt;
    }
    const double least = accepted.least * accepted.unit;
    const double most = accepted.most * accepted.unit;
    if ((result < least && !accepted.clampedBelow) || (result > most && !accepted.clampedAbove))
        return std::nullopt;
    return std::clamp(result, least, most);
}

std::optional<double> alphaOf(const CssFunction &function)
{
    return function.alpha ? argument(*function.alpha, {true, true}) : 1.0;
}

bool mixesKinds(const std::vector<CssValue> &values)
{
    return std::ranges::any_of(values, [&values](const CssValue &value) { return value.kind != values[0].kind; });
}

bool holdsNone(const CssFunction &function)
{
    const auto isNone = [](const CssValue &value) { return value.kind == CssValue::Kind::None; };
    return std::ranges::any_of(function.arguments, isNone) || (function.alpha && isNone(*function.alpha));
}

struct FunctionRow
{
    QLatin1StringView name;
    QLatin1StringView notation;
    bool withCommas = false;
    Arguments withSpaces;
    Arguments legacy; ///< where commas are allowed
    WideColor (*color)(const std::array<double, 3> &values, double alpha) = nullptr;
};

constexpr auto rgb = [](const std::array<double, 3> &v, double alpha) {
    return WideColor{RgbSpace::Srgb, v[0], v[1], v[2], alpha};
};
constexpr auto displayP3 = [](const std::array<double, 3> &v, double alpha) {
    return WideColor{RgbSpace::DisplayP3, v[0], v[1], v[2], alpha};
};
constexpr auto hsl = [](const std::array<double, 3> &v, double alpha) {
    return wideColorFrom(HslColor{v[0], v[1], v[2]}, alpha);
};
constexpr auto hwb = [](const std::array<double, 3> &v, double alpha) {
    return wideColorFrom(HwbColor{v[0], v[1], v[2]}, alpha);
};
constexpr auto oklab = [](const std::array<double, 3> &v, double alpha) {
    return wideColorFrom(OklabColor{v[0], v[1], v[2]}, alpha);
};
constexpr auto oklch = [](const std::array<double, 3> &v, double alpha) {
    return wideColorFrom(OklchColor{v[0], v[1], v[2]}, alpha);
};

constexpr Arguments rgbSpaced{byteOrShare, byteOrShare, byteOrShare};
constexpr Arguments hslSpaced{hue, shareOrHundred, shareOrHundred};
constexpr Arguments hwbSpaced{hue, part, part};
constexpr Arguments hslLegacy{hue, share, share};
constexpr Arguments components{component, component, component};

constexpr FunctionRow functions[] = {
    {"rgb"_L1, "css-rgb"_L1, true, rgbSpaced, rgbSpaced, rgb},
    {"rgba"_L1, "css-rgb"_L1, true, rgbSpaced, rgbSpaced, rgb},
    {"hsl"_L1, "css-hsl"_L1, true, hslSpaced, hslLegacy, hsl},
    {"hsla"_L1, "css-hsl"_L1, true, hslSpaced, hslLegacy, hsl},
    {"hwb"_L1, "css-hwb"_L1, false, hwbSpaced, {}, hwb},
    {"oklab"_L1, "css-oklab"_L1, false, {lightness, axis, axis}, {}, oklab},
    {"oklch"_L1, "css-oklch"_L1, false, {lightness, chroma, hue}, {}, oklch},
    {"color srgb"_L1, "css-color"_L1, false, components, {}, rgb},
    {"color display-p3"_L1, "css-p3"_L1, false, components, {}, displayP3},
};

std::optional<ColorReading> colorFromFunction(CssFunction function)
{
    // In color() the space is the first argument; here it is part of the function's name.
    if (function.name == u"color" && !function.arguments.empty()) {
        function.name += u' ' + function.arguments.front().word;
        function.arguments.erase(function.arguments.begin());
    }
    const auto *row =
        std::ranges::find_if(functions, [&function](const FunctionRow &one) { return function.name == one.name; });
    if (row == std::end(functions) || function.arguments.size() != 3 || (function.commas && !row->withCommas))
        return std::nullopt;
    // The old form has no "none", and all arguments of its rgb() have the same kind.
    const bool isRgb = row->notation == "css-rgb"_L1;
    if (function.commas && (holdsNone(function) || (isRgb && mixesKinds(function.arguments))))
        return std::nullopt;
    std::array<double, 3> values{};
    for (std::size_t index = 0; index < values.size(); ++index) {
        const Accepted &accepted = function.commas ? row->legacy[index] : row->withSpaces[index];
        const std::optional<double> value = argument(function.arguments[index], accepted);
        if (!value)
            return std::nullopt;
        values[index] = *value;
    }
    const std::optional<double> alpha = alphaOf(function);
    if (!alpha)
        return std::nullopt;
    return ColorReading{row->color(values, *alpha), row->notation};
}

std::optional<ColorReading> colorFromName(QStringView text)
{
    const QString name = text.toString().toLower();
    const bool letters = std::ranges::all_of(name, [](QChar letter) { return letter >= u'a' && letter <= u'z'; });
    if (name.isEmpty() || !letters)
        return std::nullopt;
    if (name == u"rebeccapurple")
        return ColorReading{wideColorFromBytes(0x66, 0x33, 0x99), "css-name"_L1};
    static const QStringList known = QColor::colorNames();
    if (!known.contains(name))
        return std::nullopt;
    const QColor color(name);
    return ColorReading{wideColorFromBytes(color.red(), color.green(), color.blue(), color.alpha()), "css-name"_L1};
}

std::optional<ColorReading> colorFromValue(QStringView text)
{
    if (text.startsWith(u'#')) {
        const std::optional<WideColor> color = colorFromHash(text, AlphaPlace::Last);
        return color ? std::optional(ColorReading{*color, "css-hex"_L1}) : std::nullopt;
    }
    if (std::optional<CssFunction> function = cssFunction(text))
        return colorFromFunction(*std::move(function));
    return colorFromName(text);
}

} // namespace

std::optional<ColorReading> colorFromCss(QStringView text)
{
    static const QRegularExpression rule(uR"rule(^[^{}()"]*\{\s*(--[\w-]+\s*:[^{};]*);?\s*\}$)rule"_s);
    static const QRegularExpression declaration(uR"(^-{0,2}[a-zA-Z][\w-]*\s*:\s*([^;:]*?)\s*;?$)"_s);
    static const QRegularExpression utility(uR"(^[a-z][a-z0-9-]*-\[([^\[\]\s]*)\]$)"_s);
    QString value = text.trimmed().toString();
    if (const auto match = utility.match(value); match.hasMatch()) {
        // White space would end the class name, so "_" replaces it.
        std::optional<ColorReading> reading = colorFromValue(match.captured(1).replace(u'_', u' '));
        if (reading)
            reading->notation = "tailwind"_L1;
        return reading;
    }
    const auto ruled = rule.match(value);
    if (ruled.hasMatch())
        value = ruled.captured(1).trimmed();
    if (const auto match = declaration.match(value); match.hasMatch())
        value = match.captured(1);
    std::optional<ColorReading> reading = colorFromValue(value.trimmed());
    if (reading && ruled.hasMatch() && text.trimmed().startsWith(u"@theme"))
        reading->notation = "tailwind"_L1;
    return reading;
}

} // namespace lumora
