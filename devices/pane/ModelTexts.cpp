// SPDX-License-Identifier: MIT
#include "ModelTexts.h"

#include <QCoreApplication>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace lumora
{

QString factWords(CardFact fact)
{
    switch (fact) {
    case CardFact::Identifiers:
        return qtTrId("DEVICES_FACT_IDENTIFIERS");
    case CardFact::Released:
        return qtTrId("DEVICES_FACT_RELEASED");
    case CardFact::Chip:
        return qtTrId("DEVICES_FACT_CHIP");
    case CardFact::Architecture:
        return qtTrId("DEVICES_FACT_ARCHITECTURE");
    case CardFact::MinimumOs:
        return qtTrId("DEVICES_FACT_MINIMUM");
    case CardFact::NewestOs:
        return qtTrId("DEVICES_FACT_NEWEST");
    case CardFact::Screen:
        return qtTrId("DEVICES_FACT_SCREEN");
    case CardFact::Render:
        return qtTrId("DEVICES_FACT_RENDER");
    case CardFact::Points:
        return qtTrId("DEVICES_FACT_POINTS");
    case CardFact::Scale:
        return qtTrId("DEVICES_FACT_SCALE");
    case CardFact::Diagonal:
        return qtTrId("DEVICES_FACT_DIAGONAL");
    case CardFact::Density:
        return qtTrId("DEVICES_FACT_DENSITY");
    case CardFact::ScreenClassKey:
        return qtTrId("DEVICES_FACT_CLASS");
    case CardFact::Biometry:
        return qtTrId("DEVICES_FACT_BIOMETRY");
    case CardFact::DynamicIsland:
        return featureWords(ModelFeature::DynamicIsland);
    case CardFact::Lidar:
        return featureWords(ModelFeature::Lidar);
    case CardFact::UsbC:
        return featureWords(ModelFeature::UsbC);
    case CardFact::Cellular5G:
        return featureWords(ModelFeature::Cellular5G);
    case CardFact::Capabilities:
        return qtTrId("DEVICES_FACT_CAPABILITIES");
    case CardFact::LaunchSizes:
        return qtTrId("DEVICES_FACT_LAUNCH");
    case CardFact::ScreenshotSizes:
        break;
    }
    return qtTrId("DEVICES_FACT_SCREENSHOTS");
}

QString valueWords(CardFact fact, const QString &value)
{
    if (value.isEmpty())
        return u"–"_s;
    if (fact == CardFact::Diagonal || fact == CardFact::Scale || fact == CardFact::ScreenClassKey)
        return QString(value).replace(u'.', QLocale().decimalPoint());
    const bool isHaving = fact == CardFact::DynamicIsland || fact == CardFact::Lidar || fact == CardFact::UsbC ||
                          fact == CardFact::Cellular5G;
    if (!isHaving && fact != CardFact::Biometry)
        return value;
    QStringList words;
    for (const QString &part : value.split(u", "_s)) {
        if (isHaving)
            words << (part == u"yes" ? qtTrId("DEVICES_YES") : qtTrId("DEVICES_NO"));
        else
            words << biometryWords(part);
    }
    return words.join(u", "_s);
}

QString modelName(const ModelGroup &group)
{
    const std::string_view name = group.first().name;
    return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

} // namespace lumora
