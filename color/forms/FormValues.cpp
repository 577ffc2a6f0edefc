// SPDX-License-Identifier: MIT
#include "FormValues.h"

#include "color/spaces/ColorModels.h"

#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int componentDecimals = 4;
constexpr int degreeDecimals = 2;

QString component(double value)
{
    return shortDecimal(value, componentDecimals);
}

QString pointed(double value)
{
    const QString text = component(value);
    return text.contains(u'.') ? text : QString(text + u".0"_s);
}

QString twoDigits(int byte)
{
    return QString::asprintf("%02X", static_cast<unsigned>(byte));
}

using Values = std::vector<std::pair<QLatin1StringView, QString>>;

void addComponents(Values &values, const WideColor &shown)
{
    const auto add = [&values](QLatin1StringView plain, QLatin1StringView withPoint, QLatin1StringView withSuffix,
                               double value) {
        values.emplace_back(plain, component(value));
        values.emplace_back(withPoint, pointed(value));
        values.emplace_back(withSuffix, QString(component(value) + u'f'));
    };
    add("{r}"_L1, "{r.}"_L1, "{rf}"_L1, shown.red);
    add("{g}"_L1, "{g.}"_L1, "{gf}"_L1, shown.green);
    add("{b}"_L1, "{b.}"_L1, "{bf}"_L1, shown.blue);
    add("{a}"_L1, "{a.}"_L1, "{af}"_L1, shown.alpha);
    values.emplace_back("{a3}"_L1, QString::number(shown.alpha, 'f', 3));
    const QString alpha = component(shown.alpha);
    values.emplace_back("{/a}"_L1, alpha == u"1" ? QString() : QString(u" / "_s + alpha));
}

void addBytes(Values &values, const WideColor &color)
{
    const auto [red, green, blue, alpha] = bytesOf(color);
    values.emplace_back("{R}"_L1, QString::number(red));
    values.emplace_back("{G}"_L1, QString::number(green));
    values.emplace_back("{B}"_L1, QString::number(blue));
    values.emplace_back("{A}"_L1, QString::number(alpha));
    values.emplace_back("{RR}"_L1, twoDigits(red));
    values.emplace_back("{GG}"_L1, twoDigits(green));
    values.emplace_back("{BB}"_L1, twoDigits(blue));
    const QString argb = twoDigits(alpha) + twoDigits(red) + twoDigits(green) + twoDigits(blue);
    const QString hex8 = hex8Of(color);
    values.emplace_back("{#argb}"_L1, QString(u'#' + argb));
    values.emplace_back("{0xargb}"_L1, QString(u"0x"_s + argb));
    values.emplace_back("{#rgba}"_L1, hex8);
    values.emplace_back("{#shortest}"_L1, alpha == 255 ? hex8.chopped(2) : hex8);
}

void addModels(Values &values, const WideColor &color)
{
    const auto percent = [](double value) { return shortDecimal(value * 100.0, degreeDecimals); };
    // A hue that rounds to a whole turn becomes 0.
    const auto angle = [](double degrees, int decimals) {
        const QString text = shortDecimal(degrees, decimals);
        return text == u"360" ? u"0"_s : text;
    };
    const HslColor hsl = hslOf(color);
    const HwbColor hwb = hwbOf(color);
    values.emplace_back("{hue}"_L1, angle(hsl.hue, degreeDecimals));
    values.emplace_back("{sat}"_L1, percent(hsl.saturation));
    values.emplace_back("{light}"_L1, percent(hsl.lightness));
    values.emplace_back("{white}"_L1, percent(hwb.whiteness));
    values.emplace_back("{black}"_L1, percent(hwb.blackness));
    const OklchColor oklch = oklchOf(color);
    values.emplace_back("{okl}"_L1, shortDecimal(oklch.lightness * 100.0, 3));
    values.emplace_back("{okc}"_L1, shortDecimal(oklch.chroma, 5));
    values.emplace_back("{okh}"_L1, angle(oklch.hue, 3));
    const WideColor p3 = inSpace(color, RgbSpace::DisplayP3);
    values.emplace_back("{p3r}"_L1, component(p3.red));
    values.emplace_back("{p3g}"_L1, component(p3.green));
    values.emplace_back("{p3b}"_L1, component(p3.blue));
}

} // namespace

QString shortDecimal(double value, int decimals)
{
    QString text = QString::number(value, 'f', decimals);
    if (text.contains(u'.')) {
        while (text.endsWith(u'0'))
            text.chop(1);
        if (text.endsWith(u'.'))
            text.chop(1);
    }
    return text == u"-0" ? u"0"_s : text;
}

QString withFormValues(QLatin1StringView text, const WideColor &color, RgbSpace space)
{
    Values values;
    addComponents(values, clippedTo(color, space));
    addBytes(values, color);
    addModels(values, color);
    QString result = text;
    for (const auto &[place, value] : values)
        result.replace(place, value);
    return result;
}

} // namespace lumora
