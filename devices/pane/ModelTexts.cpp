// SPDX-License-Identifier: MIT
#include "ModelTexts.h"

#include <QCoreApplication>
#include <QLocale>

#include <array>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

QString reasonWord(const FallsOutReason &reason)
{
    switch (reason.reason) {
    case FallsOut::EndsBefore:
        return qtTrId("DEVICES_ENDS");
    case FallsOut::BeginsAfter:
        return qtTrId("DEVICES_BEGINS");
    case FallsOut::OtherFamily:
        return qtTrId("DEVICES_OTHER_FAMILY");
    case FallsOut::OtherChip:
        return qtTrId("DEVICES_OTHER_CHIP");
    case FallsOut::Lacks:
    case FallsOut::LacksFeature:
        return qtTrId("DEVICES_MISSES");
    case FallsOut::OtherScreen:
        return reason.detail.isEmpty() ? qtTrId("DEVICES_UNKNOWN_SCREEN") : qtTrId("DEVICES_OTHER_SCREEN");
    case FallsOut::OtherBiometry:
        return qtTrId("DEVICES_OTHER_BIOMETRY");
    case FallsOut::UnknownFeature:
        return qtTrId("DEVICES_UNKNOWN_FEATURE");
    case FallsOut::NotSearched:
        break;
    }
    return qtTrId("DEVICES_NOT_SEARCHED");
}

constexpr std::array biometries{Biometry::Unknown, Biometry::None, Biometry::TouchId, Biometry::FaceId};
constexpr std::array features{ModelFeature::DynamicIsland, ModelFeature::Lidar, ModelFeature::UsbC,
                              ModelFeature::Cellular5G};

QString keyText(std::string_view key)
{
    return QString::fromUtf8(key.data(), static_cast<qsizetype>(key.size()));
}

/// The engine's key of a biometry or a feature in words; other details as they are.
QString detailWords(const FallsOutReason &reason)
{
    if (reason.reason == FallsOut::OtherBiometry) {
        for (const Biometry biometry : biometries) {
            if (keyText(biometryKey(biometry)) == reason.detail)
                return biometryWords(biometry);
        }
    }
    if (reason.reason == FallsOut::LacksFeature || reason.reason == FallsOut::UnknownFeature) {
        for (const ModelFeature feature : features) {
            if (featureKey(feature) == reason.detail)
                return featureWords(feature);
        }
    }
    return reason.detail;
}

} // namespace

QString reasonWords(const std::vector<FallsOutReason> &reasons)
{
    QStringList words;
    for (const FallsOutReason &reason : reasons)
        words << reasonWord(reason).replace("[DETAIL]"_L1, detailWords(reason));
    return words.join(u"; "_s);
}

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
        for (const Biometry biometry : biometries) {
            if (!isHaving && keyText(biometryKey(biometry)) == part)
                words << biometryWords(biometry);
        }
    }
    return words.join(u", "_s);
}

QString biometryWords(Biometry biometry)
{
    switch (biometry) {
    case Biometry::TouchId:
        return u"Touch ID"_s;
    case Biometry::FaceId:
        return u"Face ID"_s;
    case Biometry::None:
        return qtTrId("DEVICES_NO_BIOMETRY");
    case Biometry::Unknown:
        break;
    }
    return qtTrId("DEVICES_UNKNOWN_BIOMETRY");
}

QString featureWords(ModelFeature feature)
{
    switch (feature) {
    case ModelFeature::DynamicIsland:
        return u"Dynamic Island"_s;
    case ModelFeature::Lidar:
        return u"LiDAR"_s;
    case ModelFeature::UsbC:
        return u"USB-C"_s;
    case ModelFeature::Cellular5G:
        break;
    }
    return u"5G"_s;
}

QString modelName(const ModelGroup &group)
{
    return keyText(group.first().name);
}

} // namespace lumora
