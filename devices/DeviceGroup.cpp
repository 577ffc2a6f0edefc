// SPDX-License-Identifier: MIT
#include "DeviceGroup.h"

#include "DeviceViews.h"
#include "widgets/popover/PopoverGeometry.h"

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

QString text(std::string_view view)
{
    return QString::fromUtf8(view.data(), static_cast<qsizetype>(view.size()));
}

/// The version with one decimal: "4.2", "7.0".
QString versionText(float version)
{
    return QString::number(static_cast<double>(version), 'f', 1);
}

QRect placedIn(const QWidget *container, const QRect &upwards)
{
    return flipped(QRectF(upwards), container->height()).toRect();
}

} // namespace

DeviceGroup DeviceGroup::create(const std::vector<DeviceRecord> &devices, const QString &name, Placement placement,
                                QWidget *container)
{
    DeviceGroup group;
    for (std::size_t index = 0; index < devices.size(); ++index) {
        const DeviceRecord &device = devices[index];
        const DevicePlacement place = placement(device, static_cast<int>(index));
        auto *picture = new DevicePicture(NamedImage(text(device.image)), container);
        picture->setGeometry(placedIn(container, place.picture));
        const QString groupName = isMini(device) ? qtTrId("DEVICES_IPAD_MINI") : name;
        picture->setAccessibleName(groupName + u' ' + text(device.model));
        picture->setToolTip(picture->accessibleName());
        describe(picture, device.active);
        auto *label = new DeviceLabel(text(device.model), container);
        label->setGeometry(placedIn(container, place.label));
        label->setToolTip(picture->toolTip());
        group.images.push_back(picture);
        group.labels.push_back(label);
    }
    return group;
}

void DeviceGroup::describe(DevicePicture *picture, bool matches)
{
    QString description = matches ? qtTrId("ACCESSIBLE_DEVICE_MATCH") : qtTrId("ACCESSIBLE_DEVICE_NO_MATCH");
    picture->setAccessibleDescription(description.replace("[DEVICE]"_L1, picture->accessibleName()));
}

void DeviceGroup::explain(DevicePicture *picture, DeviceLabel *label, const DeviceRecord &device,
                          const Shortfall &shortfall)
{
    QStringList reasons;
    if (shortfall.wantedIos)
        reasons += qtTrId("DEVICES_TOO_OLD")
                       .replace("[NEWEST]"_L1, versionText(device.maxIos))
                       .replace("[WANTED]"_L1, versionText(*shortfall.wantedIos));
    QStringList missing;
    for (const DeviceFeature *feature : shortfall.missing)
        missing += text(feature->label);
    if (!missing.isEmpty())
        reasons += qtTrId("DEVICES_LACKS").replace("[FEATURES]"_L1, missing.join(u", "_s));
    const QString why = reasons.join(u'\n');
    picture->setWhatsThis(why);
    picture->setToolTip(why.isEmpty() ? picture->accessibleName() : picture->accessibleName() + u'\n' + why);
    label->setToolTip(picture->toolTip());
}

} // namespace lumora
