// SPDX-License-Identifier: MIT
#include "ModelCard.h"

#include "ScreenClass.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

QString text(std::string_view view)
{
    return QString::fromUtf8(view.data(), static_cast<qsizetype>(view.size()));
}

QString sizeText(QSize size)
{
    return size.isEmpty() ? QString() : u"%1x%2"_s.arg(size.width()).arg(size.height());
}

QString sizesText(const std::vector<QSize> &sizes)
{
    QStringList texts;
    for (const QSize size : sizes)
        texts << sizeText(size);
    return texts.join(u", "_s);
}

QString havingText(Having having)
{
    return having == Having::Unknown ? QString() : having == Having::Yes ? u"yes"_s : u"no"_s;
}

QString numberText(double number)
{
    return number > 0.0 ? QString::number(number) : QString();
}

QString capabilitiesText(const DeviceModel &model)
{
    QStringList keys;
    for (const ModelCapability &capability : modelCapabilities()) {
        if (capability.has(model))
            keys << text(capability.key);
    }
    return keys.join(u' ');
}

QString variantText(const DeviceModel &model, CardFact fact)
{
    const ScreenClass *screen = nullptr;
    switch (fact) {
    case CardFact::Identifiers:
        return text(model.identifier);
    case CardFact::Released:
        return text(model.released);
    case CardFact::Chip:
        return text(model.chip);
    case CardFact::Architecture:
        return text(model.arch);
    case CardFact::MinimumOs:
        return versionText(model.minOs);
    case CardFact::NewestOs:
        return versionText(model.maxOs);
    case CardFact::Screen:
        return sizeText({model.widthPixels, model.heightPixels});
    case CardFact::Render:
        return sizeText({model.renderWidth, model.renderHeight});
    case CardFact::Points:
        return sizeText({model.widthPoints, model.heightPoints});
    case CardFact::Scale:
        return numberText(model.scale);
    case CardFact::Diagonal:
        return numberText(model.diagonalInches);
    case CardFact::Density:
        return numberText(model.pixelsPerInch);
    case CardFact::ScreenClassKey:
        screen = screenClassOf(model);
        return screen == nullptr ? QString() : text(screen->key);
    case CardFact::Biometry:
        return model.biometry == Biometry::Unknown ? QString() : text(biometryKey(model.biometry));
    case CardFact::DynamicIsland:
        return havingText(model.dynamicIsland);
    case CardFact::Lidar:
        return havingText(model.lidar);
    case CardFact::UsbC:
        return havingText(model.usbC);
    case CardFact::Cellular5G:
        return havingText(model.cellular5G);
    case CardFact::Capabilities:
        return capabilitiesText(model);
    case CardFact::LaunchSizes:
        return sizesText(launchSizes(model));
    case CardFact::ScreenshotSizes:
        break;
    }
    return sizesText(screenshotSizes(model));
}

std::vector<QSize> bothWays(std::span<const QSize> portrait)
{
    std::vector<QSize> sizes(portrait.begin(), portrait.end());
    for (const QSize size : portrait)
        sizes.push_back(size.transposed());
    return sizes;
}

} // namespace

QString cardFactName(CardFact fact)
{
    static constexpr std::array<QLatin1StringView, cardFactCount> names{
        "identifiers"_L1,     "released"_L1, "chip"_L1,         "architecture"_L1, "minimum iOS"_L1,
        "newest iOS"_L1,      "screen"_L1,   "rendered"_L1,     "points"_L1,       "scale"_L1,
        "diagonal"_L1,        "ppi"_L1,      "screen class"_L1, "biometry"_L1,     "Dynamic Island"_L1,
        "LiDAR"_L1,           "USB-C"_L1,    "5G"_L1,           "capabilities"_L1, "launch sizes"_L1,
        "screenshot sizes"_L1};
    return names[static_cast<std::size_t>(fact)];
}

QString cardText(const ModelGroup &group, CardFact fact)
{
    QStringList values;
    for (const DeviceModel *model : group.variants) {
        const QString value = variantText(*model, fact);
        if (!value.isEmpty() && !values.contains(value))
            values << value;
    }
    return values.join(u", "_s);
}

std::vector<QSize> launchSizes(const DeviceModel &model)
{
    if (!hasKnownScreen(model))
        return {};
    const QSize portrait(model.renderWidth, model.renderHeight);
    return {portrait, portrait.transposed()};
}

std::vector<QSize> screenshotSizes(const DeviceModel &model)
{
    const ScreenClass *screen = screenClassOf(model);
    return screen == nullptr ? std::vector<QSize>() : bothWays(screen->screenshots);
}

std::vector<ComparedFact> comparedFacts(const std::vector<ModelGroup> &groups)
{
    std::vector<ComparedFact> rows;
    for (int index = 0; index < cardFactCount; ++index) {
        ComparedFact row{static_cast<CardFact>(index), {}};
        for (const ModelGroup &group : groups)
            row.values << cardText(group, row.fact);
        row.differs = std::ranges::any_of(row.values, [&row](const QString &value) { return value != row.values[0]; });
        rows.push_back(row);
    }
    return rows;
}

} // namespace lumora
