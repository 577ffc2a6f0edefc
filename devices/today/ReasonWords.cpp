// SPDX-License-Identifier: MIT
#include "ReasonWords.h"

#include <QCoreApplication>

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
    case FallsOut::OtherDevice:
        return qtTrId("DEVICES_OTHER_DEVICE");
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
    if (reason.reason == FallsOut::OtherBiometry)
        return biometryWords(reason.detail);
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

QString biometryWords(const QString &key)
{
    for (const Biometry biometry : biometries) {
        if (keyText(biometryKey(biometry)) == key)
            return biometryWords(biometry);
    }
    return key;
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

} // namespace lumora
