// SPDX-License-Identifier: MIT
#include "CodeGrammar.h"

#include "CodeTokens.h"
#include "ColorForm.h"
#include "color/spaces/ColorModels.h"

#include <array>
#include <iterator>
#include <vector>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

struct GrammarRow
{
    QLatin1StringView form;
    RgbSpace space = RgbSpace::Srgb;
    QLatin1StringView text;
};

constexpr RgbSpace srgb = RgbSpace::Srgb;
constexpr RgbSpace displayP3 = RgbSpace::DisplayP3;

/// The forms that are read but not written. They have the places of the written forms, and in addition {w} for a gray,
/// {h} {s} {v} for hue (a turn is 1), saturation and brightness, {name} for any word. If a text could be either, rows
/// of whole numbers come before rows of fractions, as the languages choose between their overloads.
constexpr GrammarRow readOnly[] = {
    {"swiftui"_L1, srgb, "Color(red: {r}, green: {g}, blue: {b})"_L1},
    {"swiftui"_L1, srgb, "Color(.sRGB, red: {r}, green: {g}, blue: {b}, opacity: {a})"_L1},
    {"swiftui"_L1, srgb, "Color(.sRGB, red: {r}, green: {g}, blue: {b})"_L1},
    {"swiftui"_L1, displayP3, "Color(.displayP3, red: {r}, green: {g}, blue: {b})"_L1},
    {"swiftui"_L1, srgb, "Color(white: {w}, opacity: {a})"_L1},
    {"swiftui"_L1, srgb, "Color(white: {w})"_L1},
    {"swiftui"_L1, srgb, "Color(hue: {h}, saturation: {s}, brightness: {v}, opacity: {a})"_L1},
    {"swiftui"_L1, srgb, "Color(hue: {h}, saturation: {s}, brightness: {v})"_L1},
    {"uikit-swift"_L1, srgb, "#colorLiteral(red: {r}, green: {g}, blue: {b}, alpha: {a})"_L1},
    {"uikit-swift"_L1, srgb, "UIColor(white: {w}, alpha: {a})"_L1},
    {"uikit-swift"_L1, srgb, "UIColor(hue: {h}, saturation: {s}, brightness: {v}, alpha: {a})"_L1},
    {"uikit-objc"_L1, srgb, "[UIColor colorWithWhite:{w} alpha:{a}]"_L1},
    {"uikit-objc"_L1, srgb, "[UIColor colorWithHue:{h} saturation:{s} brightness:{v} alpha:{a}]"_L1},
    {"appkit-swift"_L1, srgb, "NSColor(red: {r}, green: {g}, blue: {b}, alpha: {a})"_L1},
    {"appkit-swift"_L1, srgb, "NSColor(calibratedRed: {r}, green: {g}, blue: {b}, alpha: {a})"_L1},
    {"appkit-swift"_L1, srgb, "NSColor(hue: {h}, saturation: {s}, brightness: {v}, alpha: {a})"_L1},
    {"appkit-objc"_L1, srgb, "[NSColor colorWithRed:{r} green:{g} blue:{b} alpha:{a}]"_L1},
    // Components of the calibrated space are read as sRGB, as the code list writes them.
    {"appkit-objc"_L1, srgb, "[NSColor colorWithCalibratedRed:{r} green:{g} blue:{b} alpha:{a}]"_L1},
    {"compose"_L1, srgb, "{0xargb}"_L1},
    {"compose"_L1, srgb, "Color({R}, {G}, {B})"_L1},
    {"compose"_L1, srgb, "Color({R}, {G}, {B}, {A})"_L1},
    {"compose"_L1, srgb, "Color(red = {R}, green = {G}, blue = {B})"_L1},
    {"compose"_L1, srgb, "Color(red = {R}, green = {G}, blue = {B}, alpha = {A})"_L1},
    {"compose"_L1, srgb, "Color({r}, {g}, {b})"_L1},
    {"compose"_L1, srgb, "Color({r}, {g}, {b}, {a})"_L1},
    {"compose"_L1, srgb, "Color(red = {r}, green = {g}, blue = {b})"_L1},
    {"compose"_L1, srgb, "Color(red = {r}, green = {g}, blue = {b}, alpha = {a})"_L1},
    {"flutter"_L1, displayP3,
     "Color.from(alpha: {a}, red: {r}, green: {g}, blue: {b}, colorSpace: ColorSpace.displayP3)"_L1},
    {"flutter"_L1, srgb, "Color.from(alpha: {a}, red: {r}, green: {g}, blue: {b}, colorSpace: ColorSpace.sRGB)"_L1},
    {"flutter"_L1, srgb, "Color.from(alpha: {a}, red: {r}, green: {g}, blue: {b})"_L1},
    {"flutter"_L1, srgb, "const Color.from(alpha: {a}, red: {r}, green: {g}, blue: {b})"_L1},
    {"flutter"_L1, srgb, "Color.fromARGB({A}, {R}, {G}, {B})"_L1},
    {"flutter"_L1, srgb, "const Color.fromARGB({A}, {R}, {G}, {B})"_L1},
    {"flutter"_L1, srgb, "Color.fromRGBO({R}, {G}, {B}, {a})"_L1},
    {"flutter"_L1, srgb, "const Color.fromRGBO({R}, {G}, {B}, {a})"_L1},
    {"android-xml"_L1, srgb, "<color name=\"{name}\">{#argb}</color>"_L1},
    {"kotlin"_L1, srgb, "Color.rgb({R}, {G}, {B})"_L1},
    {"kotlin"_L1, srgb, "Color.argb({a}, {r}, {g}, {b})"_L1},
    {"kotlin"_L1, srgb, "Color.rgb({r}, {g}, {b})"_L1},
    {"kotlin"_L1, srgb, "Color.valueOf({0xargb})"_L1},
    {"kotlin"_L1, srgb, "Color.parseColor(\"{#argb}\")"_L1},
    {"maui"_L1, srgb, "Color.FromRgba({R}, {G}, {B}, {A})"_L1},
    {"maui"_L1, srgb, "Color.FromRgba({r}, {g}, {b}, {a})"_L1},
    {"maui"_L1, srgb, "Color.FromRgb({R}, {G}, {B})"_L1},
    {"maui"_L1, srgb, "Color.FromRgb({r}, {g}, {b})"_L1},
    {"maui"_L1, srgb, "Color.FromRgba(\"{#rgba}\")"_L1},
    {"qml"_L1, srgb, "QColor({R}, {G}, {B})"_L1},
    {"qml"_L1, srgb, "QColor({R}, {G}, {B}, {A})"_L1},
    {"qml"_L1, srgb, "QColor(\"{#argb}\")"_L1},
    {"qml"_L1, srgb, "Qt.rgba({r}, {g}, {b}, {a})"_L1},
    {"qml"_L1, srgb, "Qt.rgba({r}, {g}, {b})"_L1},
};

using Tokens = std::vector<CodeToken>;

struct Grammar
{
    QLatin1StringView form;
    RgbSpace space;
    QString text;
    Tokens tokens; ///< into `text`

    Grammar(QLatin1StringView formName, RgbSpace rgbSpace, QLatin1StringView pattern)
        : form(formName), space(rgbSpace), text(pattern), tokens(codeTokens(text, CodePlaces::Known).value())
    {
    }
    Grammar(const Grammar &) = delete;
    Grammar(Grammar &&) = default;
};

/// Written forms come first, so that their texts are read back as the same form. Colors of the web and JSON have other
/// readers.
std::vector<Grammar> completeGrammar()
{
    std::vector<Grammar> rows;
    for (const ColorForm &form : colorForms()) {
        if (form.platform == ColorPlatform::Web || form.name == "colorset"_L1)
            continue;
        rows.emplace_back(form.name, srgb, form.text);
        if (!form.displayP3Text.isEmpty())
            rows.emplace_back(form.name, displayP3, form.displayP3Text);
    }
    for (const GrammarRow &row : readOnly)
        rows.emplace_back(row.form, row.space, row.text);
    return rows;
}

int hexValue(QStringView digits)
{
    return digits.toString().toInt(nullptr, 16);
}

/// Fills a color in, value by value.
class Values
{
public:
    Values(RgbSpace space, WholeQuotients whole) : m_color{space, 0.0, 0.0, 0.0, 1.0}, m_whole(whole) {}

    bool take(QStringView place, const CodeToken &token)
    {
        if (place == "{name}"_L1)
            return token.kind == CodeToken::Kind::Word;
        if (place == "{#argb}"_L1 || place == "{#rgba}"_L1)
            return takeHash(token, place == "{#argb}"_L1 ? AlphaPlace::First : AlphaPlace::Last);
        if (place == "{0xargb}"_L1)
            return takeHexNumber(token);
        if (token.kind != CodeToken::Kind::Number)
            return false;
        const std::optional<double> number = quotientValue(token.text, m_whole);
        const char16_t letter = place[1].unicode();
        const bool byte = letter >= u'A' && letter <= u'Z';
        if (!number || *number < 0.0 || *number > (byte ? 255.0 : 1.0))
            return false;
        // As in the languages, only a number without a point is an integer.
        if (byte && !std::ranges::all_of(token.text, [](QChar digit) { return digit.isDigit(); }))
            return false;
        return store(letter, byte ? *number / 255.0 : *number);
    }

    WideColor color() const
    {
        if (!m_isHue)
            return m_color;
        const HwbColor hwb{m_hue * 360.0, (1.0 - m_saturation) * m_brightness, 1.0 - m_brightness};
        return wideColorFrom(hwb, m_color.alpha);
    }

private:
    bool takeHash(const CodeToken &token, AlphaPlace place)
    {
        const std::optional<WideColor> color =
            token.kind == CodeToken::Kind::Hash ? colorFromHash(token.text, place) : std::nullopt;
        m_color = color.value_or(m_color);
        return color.has_value();
    }

    bool takeHexNumber(const CodeToken &token)
    {
        constexpr qsizetype length = 10;
        if (token.kind != CodeToken::Kind::Number || token.text.size() != length || token.text[1].toLower() != u'x')
            return false;
        const QStringView digits = token.text.sliced(2);
        m_color = wideColorFromBytes(hexValue(digits.sliced(2, 2)), hexValue(digits.sliced(4, 2)),
                                     hexValue(digits.sliced(6, 2)), hexValue(digits.first(2)));
        return true;
    }

    bool store(char16_t letter, double value)
    {
        switch (letter) {
        case u'r':
        case u'R':
            m_color.red = value;
            return true;
        case u'g':
        case u'G':
            m_color.green = value;
            return true;
        case u'b':
        case u'B':
            m_color.blue = value;
            return true;
        case u'a':
        case u'A':
            m_color.alpha = value;
            return true;
        case u'w':
            m_color.red = m_color.green = m_color.blue = value;
            return true;
        default:
            return storeHue(letter, value);
        }
    }

    bool storeHue(char16_t letter, double value)
    {
        m_isHue = true;
        (letter == u'h' ? m_hue : letter == u's' ? m_saturation : m_brightness) = value;
        return true;
    }

    WideColor m_color;
    WholeQuotients m_whole;
    bool m_isHue = false;
    double m_hue = 0.0;
    double m_saturation = 0.0;
    double m_brightness = 0.0;
};

/// Swift takes the literals of "51/255" for fractions, and JavaScript has no whole numbers.
WholeQuotients wholeQuotientsIn(QLatin1StringView form)
{
    const bool divided = form == "swiftui"_L1 || form.endsWith("-swift"_L1) || form == "qml"_L1;
    return divided ? WholeQuotients::Divided : WholeQuotients::Truncated;
}

/// A place that follows a fixed word in the same token is filled from the rest of that token.
std::optional<WideColor> matched(const Grammar &grammar, const Tokens &tokens)
{
    if (grammar.tokens.size() != tokens.size())
        return std::nullopt;
    Values values(grammar.space, wholeQuotientsIn(grammar.form));
    for (std::size_t index = 0; index < tokens.size(); ++index) {
        const CodeToken &expected = grammar.tokens[index];
        const bool fits = expected.kind == CodeToken::Kind::Place ? values.take(expected.text, tokens[index])
                                                                  : expected == tokens[index];
        if (!fits)
            return std::nullopt;
    }
    return values.color();
}

} // namespace

std::optional<ColorReading> colorFromCode(QStringView text)
{
    static const std::vector<Grammar> rows = completeGrammar();
    std::optional<Tokens> tokens = codeTokens(text);
    if (!tokens)
        return std::nullopt;
    if (!tokens->empty() && tokens->back().text == u";")
        tokens->pop_back();
    for (const Grammar &row : rows) {
        if (const std::optional<WideColor> color = matched(row, *tokens))
            return ColorReading{*color, row.form};
    }
    return std::nullopt;
}

std::optional<WideColor> colorFromHash(QStringView text, AlphaPlace place)
{
    QString digits = text.sliced(1).toString();
    for (const QChar digit : std::as_const(digits)) {
        if (!QStringLiteral("0123456789abcdefABCDEF").contains(digit))
            return std::nullopt;
    }
    if (digits.size() == 3 || digits.size() == 4) {
        QString doubled;
        for (const QChar digit : std::as_const(digits))
            doubled += QString(2, digit);
        digits = doubled;
    }
    if (digits.size() == 6)
        digits = place == AlphaPlace::First ? QString(u"ff"_s + digits) : QString(digits + u"ff"_s);
    if (digits.size() != 8)
        return std::nullopt;
    std::array<int, 4> bytes{};
    for (std::size_t index = 0; index < bytes.size(); ++index)
        bytes[index] = hexValue(QStringView(digits).sliced(static_cast<qsizetype>(index) * 2, 2));
    if (place == AlphaPlace::First)
        return wideColorFromBytes(bytes[1], bytes[2], bytes[3], bytes[0]);
    return wideColorFromBytes(bytes[0], bytes[1], bytes[2], bytes[3]);
}

} // namespace lumora
