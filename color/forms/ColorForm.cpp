// SPDX-License-Identifier: MIT
#include "ColorForm.h"

#include "FormValues.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr auto colorSet = R"({"colors":[{"color":{"color-space":"srgb","components":{"alpha":"{a3}","blue":"0x{BB}",)"
                          R"("green":"0x{GG}","red":"0x{RR}"}},"idiom":"universal"}],)"
                          R"("info":{"author":"xcode","version":1}})"_L1;
constexpr auto colorSetP3 =
    R"({"colors":[{"color":{"color-space":"display-p3","components":{"alpha":"{a3}","blue":"{b.}",)"
    R"("green":"{g.}","red":"{r.}"}},"idiom":"universal"}],)"
    R"("info":{"author":"xcode","version":1}})"_L1;

constexpr std::array<ColorForm, 19> forms{{
    {"swiftui"_L1, "SwiftUI"_L1, ColorPlatform::Apple, "Color(red: {r}, green: {g}, blue: {b}, opacity: {a})"_L1,
     "Color(.displayP3, red: {r}, green: {g}, blue: {b}, opacity: {a})"_L1},
    {"uikit-swift"_L1, "UIKit, Swift"_L1, ColorPlatform::Apple,
     "UIColor(red: {r}, green: {g}, blue: {b}, alpha: {a})"_L1,
     "UIColor(displayP3Red: {r}, green: {g}, blue: {b}, alpha: {a})"_L1},
    {"uikit-objc"_L1, "UIKit, Objective-C"_L1, ColorPlatform::Apple,
     "[UIColor colorWithRed:{r.} green:{g.} blue:{b.} alpha:{a.}]"_L1,
     "[UIColor colorWithDisplayP3Red:{r.} green:{g.} blue:{b.} alpha:{a.}]"_L1},
    {"appkit-swift"_L1, "AppKit, Swift"_L1, ColorPlatform::Apple,
     "NSColor(srgbRed: {r}, green: {g}, blue: {b}, alpha: {a})"_L1,
     "NSColor(displayP3Red: {r}, green: {g}, blue: {b}, alpha: {a})"_L1},
    {"appkit-objc"_L1, "AppKit, Objective-C"_L1, ColorPlatform::Apple,
     "[NSColor colorWithSRGBRed:{r.} green:{g.} blue:{b.} alpha:{a.}]"_L1,
     "[NSColor colorWithDisplayP3Red:{r.} green:{g.} blue:{b.} alpha:{a.}]"_L1},
    {"colorset"_L1, "Contents.json"_L1, ColorPlatform::Apple, colorSet, colorSetP3},
    {"compose"_L1, "Jetpack Compose"_L1, ColorPlatform::Android, "Color({0xargb})"_L1,
     "Color(red = {rf}, green = {gf}, blue = {bf}, alpha = {af}, colorSpace = ColorSpaces.DisplayP3)"_L1},
    {"flutter"_L1, "Flutter"_L1, ColorPlatform::Flutter, "const Color({0xargb})"_L1,
     "const Color.from(alpha: {a}, red: {r}, green: {g}, blue: {b}, colorSpace: ColorSpace.displayP3)"_L1},
    {"android-xml"_L1, "Android XML"_L1, ColorPlatform::Android, "<color name=\"color\">{#argb}</color>"_L1, {}},
    {"kotlin"_L1, "Kotlin"_L1, ColorPlatform::Android, "Color.argb({A}, {R}, {G}, {B})"_L1,
     "Color.valueOf({rf}, {gf}, {bf}, {af}, ColorSpace.get(ColorSpace.Named.DISPLAY_P3))"_L1},
    {"css-hex"_L1, "CSS hex"_L1, ColorPlatform::Web, "{#rgba}"_L1, {}},
    {"css-rgb"_L1, "CSS rgb"_L1, ColorPlatform::Web, "rgb({R} {G} {B}{/a})"_L1, {}},
    {"css-hsl"_L1, "CSS hsl"_L1, ColorPlatform::Web, "hsl({hue} {sat}% {light}%{/a})"_L1, {}},
    {"css-hwb"_L1, "CSS hwb"_L1, ColorPlatform::Web, "hwb({hue} {white}% {black}%{/a})"_L1, {}},
    {"css-oklch"_L1, "CSS oklch"_L1, ColorPlatform::Web, "oklch({okl}% {okc} {okh}{/a})"_L1, {}, true},
    {"css-p3"_L1, "CSS display-p3"_L1, ColorPlatform::Web, "color(display-p3 {p3r} {p3g} {p3b}{/a})"_L1, {}, true},
    {"maui"_L1, ".NET MAUI"_L1, ColorPlatform::DotNet, "Color.FromArgb(\"{#argb}\")"_L1, {}},
    {"tailwind"_L1, "Tailwind CSS"_L1, ColorPlatform::Web, "bg-[{#shortest}]"_L1,
     "@theme { --color-brand: oklch({okl}% {okc} {okh}{/a}); }"_L1},
    {"qml"_L1, "QML"_L1, ColorPlatform::Qt, "\"{#argb}\""_L1, {}},
}};

} // namespace

QLatin1StringView platformName(ColorPlatform platform)
{
    static constexpr std::array<QLatin1StringView, 6> names{"Apple"_L1, "Android"_L1, "Flutter"_L1,
                                                            "Web"_L1,   "Qt"_L1,      ".NET"_L1};
    return names[static_cast<std::size_t>(platform)];
}

std::span<const ColorForm> colorForms()
{
    return forms;
}

const ColorForm *colorFormNamed(QStringView name)
{
    const auto *form = std::ranges::find_if(forms, [name](const ColorForm &one) { return name == one.name; });
    return form == forms.end() ? nullptr : form;
}

QString formText(const ColorForm &form, const WideColor &color)
{
    return withFormValues(form.text, color, RgbSpace::Srgb);
}

QString displayP3FormText(const ColorForm &form, const WideColor &color)
{
    return form.displayP3Text.isEmpty() ? QString() : withFormValues(form.displayP3Text, color, RgbSpace::DisplayP3);
}

} // namespace lumora
