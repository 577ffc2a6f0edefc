// SPDX-License-Identifier: MIT
#include "Judging.h"

using namespace Qt::StringLiterals;

namespace lumora
{

BinaryPlatform platformOf(const PackageContents &contents)
{
    const PackageBundle *app = contents.app();
    if (app == nullptr)
        return BinaryPlatform::Unknown;
    const PackageBinary *binary = contents.binaryOf(*app);
    if (binary != nullptr) {
        for (const BinarySlice &slice : binary->facts.slices) {
            if (!slice.targets.isEmpty())
                return slice.targets.first().platform;
        }
    }
    const QString name = app->text(u"DTPlatformName"_s);
    if (name == "iphoneos"_L1)
        return BinaryPlatform::Ios;
    if (name == "appletvos"_L1)
        return BinaryPlatform::TvOS;
    if (name == "iphonesimulator"_L1)
        return BinaryPlatform::IosSimulator;
    if (name == "watchos"_L1)
        return BinaryPlatform::WatchOS;
    if (name == "xros"_L1)
        return BinaryPlatform::VisionOS;
    if (name == "macosx"_L1)
        return BinaryPlatform::MacOS;
    return BinaryPlatform::Unknown;
}

bool isPhoneApp(const PackageContents &contents)
{
    return platformOf(contents) == BinaryPlatform::Ios;
}

bool isMacApp(const PackageContents &contents)
{
    const BinaryPlatform platform = platformOf(contents);
    return platform == BinaryPlatform::MacOS || platform == BinaryPlatform::MacCatalyst;
}

QList<int> deviceFamilies(const PackageBundle &app)
{
    const QVariant value = app.info ? app.info->value(u"UIDeviceFamily"_s) : QVariant();
    QList<int> families;
    for (const QVariant &each : value.typeId() == QMetaType::QVariantList ? value.toList() : QVariantList{value}) {
        if (each.toInt() > 0)
            families += each.toInt();
    }
    return families.isEmpty() ? QList<int>{1} : families;
}

QVersionNumber minimumSystem(const PackageBundle &bundle)
{
    return QVersionNumber::fromString(bundle.text(u"MinimumOSVersion"_s));
}

QVersionNumber sdkOf(const PackageContents &contents)
{
    const PackageBundle *app = contents.app();
    if (app == nullptr)
        return {};
    const PackageBinary *binary = contents.binaryOf(*app);
    if (binary != nullptr) {
        for (const BinarySlice &slice : binary->facts.slices) {
            if (!slice.targets.isEmpty() && slice.targets.first().sdk.packed != 0)
                return QVersionNumber(slice.targets.first().sdk.major(), slice.targets.first().sdk.minor());
        }
    }
    const QString version = app->text(u"DTPlatformVersion"_s);
    return QVersionNumber::fromString(version);
}

bool isOfOldTime(const PackageContents &contents)
{
    const QVersionNumber sdk = sdkOf(contents);
    return sdk.isNull() || sdk < QVersionNumber(8);
}

QVariantMap entitlementsOf(const PackageContents &contents, const PackageBundle &bundle)
{
    const CodeSignature *signature = contents.signatureOf(bundle);
    if (signature == nullptr)
        return {};
    return signature->entitlements.value_or(signature->derEntitlements.value_or(QVariantMap()));
}

QList<const PackageBundle *> codeBundles(const PackageContents &contents)
{
    QList<const PackageBundle *> bundles;
    for (const PackageBundle &bundle : contents.bundles) {
        if (bundle.kind != BundleKind::Resources)
            bundles += &bundle;
    }
    return bundles;
}

} // namespace lumora
