// SPDX-License-Identifier: MIT
#include "ColorSetFile.h"

#include "color/spaces/ColorModels.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// Components of extended spaces may be outside 0 to 1, but beyond this limit a value is no color.
constexpr double least = -2.0;
constexpr double most = 3.0;

std::optional<double> component(const QString &text, bool isAlpha)
{
    bool ok = false;
    if (text.startsWith("0x"_L1, Qt::CaseInsensitive)) {
        const uint byte = text.sliced(2).toUInt(&ok, 16);
        return ok && byte <= 255 ? std::optional(byte / 255.0) : std::nullopt;
    }
    const double number = text.toDouble(&ok);
    if (!ok || !std::isfinite(number))
        return std::nullopt;
    // A whole number is a byte, but an opacity is always a fraction.
    const double value = text.contains(u'.') || isAlpha ? number : number / 255.0;
    const bool within = isAlpha ? value >= 0.0 && value <= 1.0 : value >= least && value <= most;
    return within ? std::optional(value) : std::nullopt;
}

bool isExtended(const QString &space)
{
    return space.startsWith("extended"_L1);
}

std::optional<WideColor> entryColor(const QJsonObject &color)
{
    const QString space = color.value("color-space"_L1).toString();
    const QJsonObject components = color.value("components"_L1).toObject();
    const auto value = [&components](QLatin1StringView name) {
        const QJsonValue text = components.value(name);
        return text.isString() ? component(text.toString(), name == "alpha"_L1) : std::nullopt;
    };
    const std::optional<double> alpha = value("alpha"_L1);
    if (space == u"gray-gamma-22" || space == u"extended-gray") {
        const std::optional<double> white = value("white"_L1);
        if (!white || !alpha || *white < 0.0 || *white > 1.0)
            return std::nullopt;
        const double gray = space == u"extended-gray" ? *white : encodedComponent(std::pow(*white, 2.2));
        return WideColor{RgbSpace::Srgb, gray, gray, gray, *alpha};
    }
    const std::optional<double> red = value("red"_L1);
    const std::optional<double> green = value("green"_L1);
    const std::optional<double> blue = value("blue"_L1);
    if (!red || !green || !blue || !alpha)
        return std::nullopt;
    WideColor result{RgbSpace::Srgb, *red, *green, *blue, *alpha};
    const auto outside = [](double one) { return one < 0.0 || one > 1.0; };
    if (!isExtended(space) && (outside(*red) || outside(*green) || outside(*blue)))
        return std::nullopt;
    if (space == u"display-p3")
        result.space = RgbSpace::DisplayP3;
    else if (space == u"extended-linear-srgb")
        result = {RgbSpace::Srgb, encodedComponent(*red), encodedComponent(*green), encodedComponent(*blue), *alpha};
    else if (space != u"srgb" && space != u"extended-srgb")
        return std::nullopt;
    return result;
}

QString appearanceOf(const QJsonObject &entry)
{
    QStringList values;
    for (const QJsonValue appearance : entry.value("appearances"_L1).toArray())
        values << appearance.toObject().value("value"_L1).toString();
    return values.join(u' ');
}

} // namespace

std::optional<std::vector<ColorSetEntry>> readColorSet(const QByteArray &json)
{
    const QJsonArray colors = QJsonDocument::fromJson(json).object().value("colors"_L1).toArray();
    std::vector<ColorSetEntry> entries;
    for (const QJsonValue value : colors) {
        const QJsonObject entry = value.toObject();
        // An empty slot has no color.
        if (!entry.contains("color"_L1))
            continue;
        const std::optional<WideColor> color = entryColor(entry.value("color"_L1).toObject());
        if (!color)
            return std::nullopt;
        entries.push_back({*color, appearanceOf(entry)});
    }
    if (entries.empty())
        return std::nullopt;
    return entries;
}

} // namespace lumora
